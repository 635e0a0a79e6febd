#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace host {

/// A call that the program does not take; its text says why.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Walks through the arguments of a call, one by one.
///
/// "--svg" and "-h" are options, "-" and "-2 mm" are not, and behind "--" nothing is. The value
/// of an option is the rest of "--svg=leaf.svg", or the argument behind it.
class CommandLine {
public:
    /// For the arguments without the program's name.
    explicit CommandLine(std::vector<std::string> given) : given_(std::move(given)) {}

    /// Moves to the next argument and returns true; false behind the last. Throws UsageError
    /// if a value was given to an option that did not ask for it.
    bool next();

    /// Whether the argument is an option.
    bool isOption() const {
        return isOption_;
    }

    /// Whether the argument is a "-" that stands for the standard input.
    bool isDash() const {
        return text_ == "-" && !optionsOver_;
    }

    /// The argument, without its value if it is an option.
    const std::string& text() const {
        return text_;
    }

    /// The value of the option, which is `what` ("a unit"). Throws UsageError if there is none
    /// or it is empty.
    std::string value(std::string_view what);

private:
    std::vector<std::string> given_;
    std::size_t next_ = 0;
    std::string text_;
    std::string value_;
    bool isOption_ = false;
    bool hasValue_ = false; ///< behind a "=", and still to be asked for
    bool optionsOver_ = false;
};

} // namespace host
