#include <zarnex/units/ZUnitScanner.h>

#include <zarnex/runtime/MiniLock.h>
#include <zarnex/runtime/internal/locks.h>
#include <zarnex/units/internal/UnitEngine.h>
#include <zarnex/units/internal/scannedNumber.h>

#include <typeinfo>

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
    using zarnex::detail::TextTokenizer;
    // A derived scanner may change the characters.
    const bool derived = typeid(*this) != typeid(ZUnitScanner);
    int token = derived ? TextTokenizer::overrun : engine_->nextOfText();
    if (token == TextTokenizer::overrun) {
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
