#pragma once

#include <zarnex/units/ZUnitScanner.h>
#include <zarnex/units/internal/TextTokenizer.h>
#include <zarnex/units/yy_scan.h>

#include <optional>

namespace zarnex::detail {

/// The buffers of a Feed.
struct FeedSpace {
    char text[tokenRoom + 1];
    unsigned char states[tokenRoom + 1];
};

/// An engine that asks a ZUnitScanner for each character.
class Feed final : private FeedSpace, public yy_scan {
public:
    /// Goes on where `done` is, as if it had read all that itself.
    Feed(ZUnitScanner& scanner, const TextTokenizer& done);

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

    /// The next token, if the text is to be had without asking, else TextTokenizer::overrun.
    int nextOfText() {
        return feed_ ? TextTokenizer::overrun : text_.next();
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
    TextTokenizer text_{L""};
    std::optional<Feed> feed_;
};

/// An engine for a new scanner; without memory the process ends. The scanner lock is held.
UnitEngine* takeEngine();

/// Gives an engine back. The scanner lock is held.
void returnEngine(UnitEngine* engine);

} // namespace zarnex::detail
