#include <zarnex/units/ZUnitScanner.h>

#include <zarnex/runtime/MiniLock.h>
#include <zarnex/runtime/exiting.h>
#include <zarnex/runtime/internal/locks.h>
#include <zarnex/units/internal/TextTokens.h>
#include <zarnex/units/internal/tokens.h>
#include <zarnex/units/yy_scan.h>

#include <algorithm>
#include <new>
#include <optional>
#include <typeinfo>
#include <utility>

namespace zarnex::detail {

namespace {

/// The buffers of a Feed.
struct FeedSpace {
    char text[tokenRoom + 1];
    unsigned char states[tokenRoom + 1];
};

/// An engine that asks a ZUnitScanner for each character.
class Feed final : private FeedSpace, public yy_scan {
public:
    /// Goes on where `done` is, as if it had read all that itself.
    Feed(ZUnitScanner& scanner, const TextTokens& done)
        : yy_scan(tokenRoom, FeedSpace::text, FeedSpace::states), scanner_(scanner),
          read_(static_cast<unsigned int>(done.readEnd - done.text)),
          wordDropped_(done.wordDropped) {
        const auto byteAt = [](wchar_t c) { return scannedByte(scannedCharacter(c)); };
        for (const wchar_t* at = done.text; at != done.begin; ++at)
            yylineno += byteAt(*at) == '\n';
        for (const wchar_t* at = done.begin; at != done.readEnd; ++at)
            yytext[yyheld++] = static_cast<char>(byteAt(*at));
        yyleng = static_cast<int>(done.end - done.begin);
        yysaved = yyleng < yyheld ? static_cast<unsigned char>(yytext[yyleng]) : 0;
        yytext[yyleng] = '\0';
    }

    int yygetc() override {
        const int c = scanner_.yygetc();
        if (c == -1)
            return c;
        ++read_;
        return scannedByte(c);
    }

    int next() {
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
        if (!first && isScannedSpace(static_cast<unsigned char>(yyprevious)) &&
            !isScannedSpace(static_cast<unsigned char>(yytext[0])))
            wordDropped_ = 1;
    }

    ZUnitScanner& scanner_;
    unsigned int read_; // characters taken from the scanner
    int wordDropped_;
};

} // namespace

/// What a ZUnitScanner reads with: its text itself, until somebody else has a say in what
/// the characters are.
class UnitEngine {
public:
    void begin(const wchar_t* text) {
        text_ = {text};
        feed_.reset();
    }

    /// From now on each character comes from the scanner; returns where it stands.
    const wchar_t* askFor(ZUnitScanner& scanner, const wchar_t* position) {
        if (feed_)
            return position;
        feed_.emplace(scanner, text_);
        return text_.readEnd;
    }

    /// The next token, if the text is to be had without asking, else TextTokens::overrun.
    int nextOfText() {
        return feed_ ? TextTokens::overrun : text_.next();
    }

    int nextOfFeed() {
        return feed_->next();
    }

    int wordDropped() const {
        return feed_ ? feed_->wordDropped() : text_.wordDropped;
    }

    int tokenBegin() const {
        return feed_ ? feed_->tokenBegin() : static_cast<int>(text_.begin - text_.text);
    }

    int tokenEnd() const {
        return feed_ ? feed_->tokenBegin() + feed_->yyleng
                     : static_cast<int>(text_.end - text_.text);
    }

private:
    TextTokens text_{L""};
    std::optional<Feed> feed_;
};

namespace {

/// The engine of an earlier scanner, for the next one; the scanner lock guards it.
constinit UnitEngine* spareEngine = nullptr;

UnitEngine* takeEngine() {
    UnitEngine* engine = std::exchange(spareEngine, nullptr);
    if (engine == nullptr)
        engine = new (std::nothrow) UnitEngine;
    if (engine == nullptr)
        exitFatally("1: No space for scanner!\n", 1);
    return engine;
}

void returnEngine(UnitEngine* engine) {
    delete std::exchange(spareEngine, engine);
}

} // namespace

} // namespace zarnex::detail

ZUnitScanner::ZUnitScanner(const wchar_t* text)
    : position_(text != nullptr ? text : L""), engine_(nullptr), value(0.0) {
    zarnex::detail::scannerLock().lock();
    engine_ = zarnex::detail::takeEngine();
    engine_->begin(position_);
}

ZUnitScanner::~ZUnitScanner() {
    zarnex::detail::returnEngine(engine_);
    zarnex::detail::scannerLock().unlock();
}

int ZUnitScanner::yygetc() {
    position_ = engine_->askFor(*this, position_);
    return *position_ != L'\0' ? zarnex::detail::scannedCharacter(*position_++) : -1;
}

int ZUnitScanner::yylex() {
    using zarnex::detail::TextTokens;
    // A derived scanner may change the characters.
    const bool derived = typeid(*this) != typeid(ZUnitScanner);
    int token = derived ? TextTokens::overrun : engine_->nextOfText();
    if (token == TextTokens::overrun) {
        position_ = engine_->askFor(*this, position_);
        token = engine_->nextOfFeed();
    }
    value = zarnex::detail::scannedNumber;
    return token;
}

int ZUnitScanner::wordDropped() const {
    return engine_->wordDropped();
}

int ZUnitScanner::tokenBegin() const {
    return engine_->tokenBegin();
}

int ZUnitScanner::tokenEnd() const {
    return engine_->tokenEnd();
}
