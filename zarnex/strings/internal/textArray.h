#pragma once

/// What the three string classes share: text in a growable array, measured up to its
/// terminator, with the array's length as the slots in use.
///
/// An array without storage, as a moved-from string has, holds the empty text. Text that
/// is put in may lie inside the array. Without memory the process ends.

#include <zarnex/containers/ZXArray.h>
#include <zarnex/runtime/exiting.h>
#include <zarnex/strings/StringUtils.h>
#include <zarnex/strings/ZString.h>
#include <zarnex/strings/internal/convert.h>
#include <zarnex/strings/internal/format.h>
#include <zarnex/strings/internal/text.h>

#include <climits>
#include <functional>
#include <type_traits>
#include <utility>

namespace zarnex::detail {

/// Below so many units, a conversion to bytes takes place on the stack.
inline constexpr std::size_t shortText = 256;

/// A friend of the string classes: their arrays, and strings made of arrays.
struct TextAccess {
    template <class String>
    static auto& array(String& string) {
        return string.array_;
    }
    template <class String, class Char>
    static String make(ZXArray<Char>&& array) {
        return String(std::move(array));
    }
};

inline std::size_t notNegative(int n) {
    return static_cast<std::size_t>((std::max)(n, 0));
}

template <class Char>
const Char* textOf(const ZXArray<Char>& array) {
    return textOrEmpty(static_cast<const Char*>(array));
}

template <class Char>
std::size_t measure(const ZXArray<Char>& array) {
    return textLength(textOf(array));
}

/// An array with room for `slots`, allocated as `array` would be if it grew to hold them.
template <class Char>
ZXArray<Char> newLike(const ZXArray<Char>& array, std::size_t slots) {
    ZXArray<Char> made;
    made.setStep(array.getStep());
    if (array.getStep() < 1 || static_cast<long long>(slots) <= array.allocLength())
        made.setAllocSize(array.allocLength());
    made.reserve(static_cast<long long>(slots));
    return made;
}

/// Room for `slots`, one at least; the text stays what it is, also without storage before.
template <class Char>
void reserveText(ZXArray<Char>& array, std::size_t slots) {
    const bool isNew = array.allocLength() == 0;
    array.reserve(static_cast<long long>(slots));
    if (isNew)
        *static_cast<Char*>(array) = Char{};
}

template <class Char>
void setUsed(ZXArray<Char>& array, std::size_t slots) {
    reserveText(array, slots);
    array.setSize(static_cast<int>(slots));
}

/// `n` + 1 slots in use, the last one terminated.
template <class Char>
void truncateText(ZXArray<Char>& array, int n) {
    setUsed(array, notNegative(n) + 1);
    array[(std::max)(n, 0)] = Char{};
}

/// The slots in use become `count` + 1. Here and in appendText() the text moves before
/// the slots in use shrink: those that are given up are cleared.
template <class Char>
void assignText(ZXArray<Char>& array, const Char* text, std::size_t count) {
    array.reserve(static_cast<long long>(count + 1));
    copyUnits(static_cast<Char*>(array), text, count, count + 1);
    setUsed(array, count + 1);
}

/// All of `text`, or none for null.
template <class Char>
void assignText(ZXArray<Char>& array, const Char* text) {
    text = textOrEmpty(text);
    assignText(array, text, textLength(text));
}

/// The first `n` units of `text`, fewer if it is shorter, in `n` + 1 slots.
template <class Char>
void assignPart(ZXArray<Char>& array, const Char* text, int n) {
    text = textOrEmpty(text);
    assignText(array, text, textLength(text, notNegative(n)));
    truncateText(array, n);
}

/// Copies the whole of `other` into an array without storage.
template <class Char>
void copyArray(ZXArray<Char>& array, const ZXArray<Char>& other) {
    array = other;
    if (array.allocLength() < other.allocLength())
        exitWithoutMemory();
}

/// Takes the slots in use and the text of `other`, cut to those slots.
template <class Char>
void assignArray(ZXArray<Char>& array, const ZXArray<Char>& other) {
    if (&array == &other)
        return;
    const std::size_t length = measure(other);
    setUsed(array, (std::max)(notNegative(other.length()), std::size_t{1}));
    copyUnits(static_cast<Char*>(array), textOf(other), length, notNegative(array.length()));
}

/// Exchanges the contents; each array keeps its growth step.
template <class Char>
void swapText(ZXArray<Char>& array, ZXArray<Char>& other) noexcept {
    const int step = array.getStep();
    const int otherStep = other.getStep();
    array.swap(other);
    array.setStep(step);
    other.setStep(otherStep);
}

/// assignArray() from an array that is given up: its storage is taken over where that comes to
/// the same, because this one would grow to that size and nothing is cut.
template <class Char>
void takeArray(ZXArray<Char>& array, ZXArray<Char>& other) {
    const int used = other.length();
    const int step = array.getStep();
    const bool grows = used > array.allocLength();
    const bool sameSize =
        step > 0 && other.allocLength() % step == 0 && other.allocLength() - step < used;
    if (grows && sameSize && measure(other) < notNegative(used))
        swapText(array, other);
    else
        assignArray(array, other);
}

template <class Char>
void appendText(ZXArray<Char>& array, const Char* text, std::size_t count) {
    const std::size_t length = measure(array);
    const Char* const before = array;
    const std::less<const Char*> isBefore;
    const bool inside = !isBefore(text, before) && isBefore(text, before + array.allocLength());
    const std::ptrdiff_t offset = inside ? text - before : 0;
    array.reserve(static_cast<long long>(length + count + 1));
    Char* const buffer = array;
    copyUnits(buffer + length, inside ? buffer + offset : text, count, count + 1);
    setUsed(array, length + count + 1);
}

/// As truncateText(), with the allocation that the growth rule gives for these slots.
template <class Char>
void resizeText(ZXArray<Char>& array, int n) {
    n = (std::max)(n, 0);
    reserveText(array, notNegative(n) + 1);
    array.resize(n + 1);
    array[n] = Char{};
}

/// All of `text`; null changes nothing, not even the slots in use.
template <class Char>
void appendText(ZXArray<Char>& array, const Char* text) {
    if (text != nullptr)
        appendText(array, text, textLength(text));
}

/// Slot `i` of the growing array, whose text is terminated if it had no storage.
template <class Char>
Char& elementOf(ZXArray<Char>& array, int i) {
    if (array.allocLength() == 0)
        truncateText(array, 0);
    return array.get(i);
}

/// A negative index wrapped by the length `size`, which may leave it negative.
inline int wrappedIndex(int i, int size) {
    if (i >= 0 || size == 0)
        return i;
    const int rest = i % size;
    return rest < 0 ? rest + size : rest;
}

/// `count` units of the array's text from `start`, fewer at its end. A negative `start`
/// counts from the end, a negative `count` means all that follow.
template <class String, class Char>
String subText(const ZXArray<Char>& array, int start, int count) {
    const int size = static_cast<int>(measure(array));
    if (count == 0 || size == 0)
        return String();
    start = wrappedIndex(start, size);
    const int available = size - start;
    const int taken = count > 0 && count < available ? count : available;
    if (taken < 1)
        return String();
    ZXArray<Char> part;
    part.setStep(growthStep);
    assignText(part, textOf(array) + start, notNegative(taken));
    return TextAccess::make<String>(std::move(part));
}

/// Sets the text by a printf format; null changes nothing.
///
/// The slots in use end up as if the room, at least twice the format's length, had been
/// doubled until the text was strictly shorter.
template <class Char>
void setFormatted(ZXArray<Char>& array, const Char* format, std::va_list arguments) {
    if (format == nullptr)
        return;
    if (*format == Char{}) {
        truncateText(array, 0);
        return;
    }
    // The text is made beside the array, which the arguments may point into.
    TextBuffer<Char> result;
    const std::size_t formatLength = textLength(format);
    appendFormatted(result, format, arguments);

    std::size_t room = (std::max)(notNegative(array.length() - 1), 2 * formatLength);
    while (result.length() >= room)
        room *= 2;
    array.reserve(static_cast<long long>(room + 1));
    assignText(array, result.data(), result.length());
    setUsed(array, room + 1);
    array[static_cast<int>(room)] = Char{};
}

// ---- From the other type. What cannot be converted is the empty text.

/// Converts `text` into as many slots as the conversion asks for. An array with storage
/// keeps what it grew to, for the next text.
template <class Out, class In>
void assignConverted(ZXArray<Out>& array, const In* text, unsigned int codePage) {
    text = textOrEmpty(text);
    const bool isNew = array.allocLength() == 0;
    const std::size_t length = textLength(text);
    const int count = length < INT_MAX ? static_cast<int>(length + 1) : -1;
    int size = 0;
    if constexpr (sizeof(Out) > sizeof(In)) {
        // Measured by a quick look, and converted once.
        const std::size_t likely = platform::likelyWideUnits(codePage, text, length) + 1;
        if (likely < INT_MAX) {
            array.reserve(static_cast<long long>(likely));
            Out* const out = array;
            size = convertUnits(codePage, text, count, out, array.allocLength());
        }
    } else if (length < shortText) {
        // Converted on the stack instead of measured.
        Out units[4 * shortText];
        size = convertUnits(codePage, text, count, units, 4 * shortText);
        if (size != 0) {
            assignText(array, units, notNegative(size - 1));
            return;
        }
    }
    if (size == 0) {
        const int needed = convertUnits(codePage, text, count, static_cast<Out*>(nullptr), 0);
        array.reserve((std::max)(needed, 1));
        Out* const out = array;
        size = needed == 0 ? 0 : convertUnits(codePage, text, count, out, needed);
    }
    if (isNew)
        resizeText(array, size - 1);
    else
        truncateText(array, size - 1);
}

/// Converts `text` from the system code page, cut at whole characters to fit `slots`,
/// all of which are in use then.
inline void assignConvertedPart(ZXArray<wchar_t>& array, const char* text, std::size_t slots) {
    setUsed(array, slots);
    StringUtils::copyString(static_cast<wchar_t*>(array), textOrEmpty(text), slots);
}

/// A string of class String with the converted text.
template <class String, class In>
String converted(const In* text, unsigned int codePage) {
    using Out = std::conditional_t<std::is_same_v<In, char>, wchar_t, char>;
    ZXArray<Out> array;
    array.setStep(growthStep);
    assignConverted(array, text, codePage);
    return TextAccess::make<String>(std::move(array));
}

} // namespace zarnex::detail
