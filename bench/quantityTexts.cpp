#include "quantityTexts.h"

#include <cstdio>
#include <random>

namespace bench {

std::vector<std::string> formed(const char* format) {
    std::mt19937 random(17);
    std::uniform_real_distribution<double> number(1.0, 200.0);
    std::vector<std::string> texts;
    for (int i = 0; i < textCount; ++i) {
        char text[100];
        std::snprintf(text, sizeof text, format, number(random));
        texts.emplace_back(text);
    }
    return texts;
}

QuantityTexts::QuantityTexts(const std::vector<std::string>& texts) : narrow(texts) {
    for (const std::string& text : texts) {
        ours.emplace_back(text.c_str());
        wide.emplace_back(text.begin(), text.end());
    }
}

} // namespace bench
