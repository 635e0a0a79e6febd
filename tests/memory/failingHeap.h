#pragma once

/// The heap of this program and of the libraries in it, which can be told to fail.

namespace failing {

/// Which requests fail once armed.
enum class Mode {
    one,      ///< the n-th alone
    fromThere ///< the n-th and all behind it
};

/// From now on the n-th request fails, counted from 1; none for 0.
void arm(long n, Mode mode);

/// Every request is granted again.
void disarm();

/// Since the last arm(): what was asked for, and what of it was refused.
long requests();
long refusals();

} // namespace failing
