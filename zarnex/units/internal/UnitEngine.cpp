#include <zarnex/units/internal/UnitEngine.h>

#include <zarnex/runtime/exiting.h>

#include <new>
#include <utility>

namespace zarnex::detail {

Feed::Feed(ZUnitScanner& scanner, const TextTokenizer& done)
    : yy_scan(tokenRoom, FeedSpace::text, FeedSpace::states), scanner_(scanner),
      read_(static_cast<unsigned int>(done.readEnd - done.text)), wordDropped_(done.wordDropped) {
    const auto byteAt = [](wchar_t c) { return scannedByte(scannedCharacter(c)); };
    for (const wchar_t* at = done.text; at != done.begin; ++at)
        yylineno += byteAt(*at) == '\n';
    for (const wchar_t* at = done.begin; at != done.readEnd; ++at)
        yytext[yyheld++] = static_cast<char>(byteAt(*at));
    yyleng = static_cast<int>(done.end - done.begin);
    yysaved = yyleng < yyheld ? static_cast<unsigned char>(yytext[yyleng]) : 0;
    yytext[yyleng] = '\0';
}

namespace {

/// The engine of an earlier scanner, for the next one; the scanner lock guards it.
constinit UnitEngine* spareEngine = nullptr;

} // namespace

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

} // namespace zarnex::detail
