#include "peers.h"

#include "text.h"

#if BENCH_BOOST
#include <boost/version.hpp>
#endif
#if BENCH_QT
#include <QtGlobal>
#endif
#if BENCH_EIGEN
#include <Eigen/src/Core/util/Macros.h>
#endif
#if BENCH_GMP
#include <gmp.h>
#endif
#if BENCH_OPENSSL
#include <openssl/crypto.h>
#endif
#if BENCH_GSL
#include <gsl/gsl_version.h>
#endif
#if BENCH_ICU
#include <unicode/uversion.h>
#endif
#if BENCH_FMT
#include <fmt/core.h>
#endif
#if BENCH_GEOS
#include <geos_c.h>
#endif

namespace bench {

std::string peers() {
    std::string list = "libstdc++ " + text("%d", _GLIBCXX_RELEASE);
#if BENCH_BOOST
    list += ", Boost " + text("%d.%d", BOOST_VERSION / 100000, BOOST_VERSION / 100 % 1000);
#endif
#if BENCH_QT
    list += std::string(", Qt ") + qVersion();
#endif
#if BENCH_EIGEN
    list += ", Eigen " +
            text("%d.%d.%d", EIGEN_WORLD_VERSION, EIGEN_MAJOR_VERSION, EIGEN_MINOR_VERSION);
#endif
#if BENCH_GMP
    list += std::string(", GMP ") + gmp_version;
#endif
#if BENCH_OPENSSL
    list += std::string(", OpenSSL ") + OpenSSL_version(OPENSSL_VERSION_STRING);
#endif
#if BENCH_GSL
    list += std::string(", GSL ") + gsl_version;
#endif
#if BENCH_ICU
    list += ", ICU " U_ICU_VERSION;
#endif
#if BENCH_FMT
    list += ", fmt " +
            text("%d.%d.%d", FMT_VERSION / 10000, FMT_VERSION / 100 % 100, FMT_VERSION % 100);
#endif
#if BENCH_GEOS
    list += ", GEOS " GEOS_VERSION;
#endif
#if BENCH_UDUNITS
    list += ", UDUNITS 2";
#endif
    return list;
}

} // namespace bench
