#include <zarnex/units/ZUnitScanner.h>

#include <zarnex/runtime/MiniLock.h>
#include <zarnex/runtime/exiting.h>
#include <zarnex/runtime/internal/locks.h>
#include <zarnex/units/yy_scan.h>

#include <cctype>
#include <new>

namespace {

constexpr int tokenRoom = 100; // characters

/// White space that no token holds, and that is dropped for that reason.
bool isDroppedSpace(int c) {
    return c == '\r' || c == '\v' || c == '\f';
}

bool isSpace(int c) {
    return c == ' ' || c == '\t' || c == '\n' || isDroppedSpace(c);
}

} // namespace

namespace zarnex::detail {

/// The buffers of an engine, in one allocation with it.
struct UnitEngineSpace {
    char text[tokenRoom + 1];
    unsigned char states[tokenRoom + 1];
};

/// The engine of one ZUnitScanner, which gives it its characters.
class UnitEngine final : private UnitEngineSpace, public yy_scan {
public:
    UnitEngine() : yy_scan(tokenRoom, UnitEngineSpace::text, UnitEngineSpace::states) {}

    void link(ZUnitScanner* scanner) {
        scanner_ = scanner;
    }

    /// Kept as is: 0 without a scanner, although the end of the input is -1.
    int yygetc() override {
        if (scanner_ == nullptr)
            return 0;
        const int c = scanner_->yygetc();
        if (c == -1)
            return c;
        ++read_;
        // U+010D has the low bits of a carriage return but is a letter. Both are
        // dropped, as is 0, which wordDropped() tells from white space.
        return c > 0xFF && isDroppedSpace(c & 0xFF) ? 0 : c;
    }

    int nextToken() {
        wordDropped_ = 0;
        int token = yystep();
        for (; token < 0; token = yystep())
            if (token == yyDropped)
                noteDropped();
        return token;
    }

    int wordDropped() const {
        return wordDropped_;
    }

    int tokenBegin() const {
        return static_cast<int>(read_ - static_cast<unsigned int>(yyheld));
    }

private:
    void noteDropped() {
        const bool first = tokenBegin() == 0; // yyprevious is not of the text yet
        if (!first && isSpace(yyprevious) && !isSpace(static_cast<unsigned char>(yytext[0])))
            wordDropped_ = 1;
    }

    ZUnitScanner* scanner_ = nullptr;
    unsigned int read_ = 0; // characters taken from the scanner
    int wordDropped_ = 0;
};

} // namespace zarnex::detail

ZUnitScanner::ZUnitScanner(const wchar_t* text)
    : position_(text != nullptr ? text : L""), engine_(nullptr), value(0.0) {
    zarnex::detail::scannerLock().lock();
    engine_ = new (std::nothrow) zarnex::detail::UnitEngine;
    if (engine_ == nullptr)
        zarnex::exitFatally("1: No space for scanner!\n", 1);
    engine_->link(this);
}

ZUnitScanner::~ZUnitScanner() {
    delete engine_;
    zarnex::detail::scannerLock().unlock();
}

int ZUnitScanner::yygetc() {
    if (*position_ == L'\0')
        return -1;
    // A 32-bit wchar_t may be negative; nothing but the end gives -1.
    const int c = static_cast<int>(static_cast<unsigned int>(*position_++) & 0x7FFFFFFFu);
    if (c >= 'A' && c <= 'Z')
        return c - 'A' + 'a';
    return c >= 0x80 && c <= 0xFF ? std::tolower(c) : c;
}

int ZUnitScanner::yylex() {
    const int token = engine_->nextToken();
    value = yy_scan::yynumber();
    return token;
}

int ZUnitScanner::wordDropped() const {
    return engine_->wordDropped();
}

int ZUnitScanner::tokenBegin() const {
    return engine_->tokenBegin();
}

int ZUnitScanner::tokenEnd() const {
    return engine_->tokenBegin() + engine_->yyleng;
}
