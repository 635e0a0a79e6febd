#pragma once

#include <string>

namespace bench {

/// The peers that this program was built with, and their versions: "GCC 12.2, Qt 6.4.2".
std::string peers();

} // namespace bench
