// The public headers in a program whose own global names are those that the library uses
// inside: they must neither win over the library's nor make them ambiguous.
struct Pair {};
struct Elements {};
struct Crossing {};
void product(int);
void difference(int);
void sum(int);
void offset(int);
void scaled(int);
void divided(int);
void dot(int);
void cross(int);
void length(int);
void widened(int);
void truncated(int);
void rounded(int);
void mapped(int);
void mirrored(int);
void projected(int);
void inverse(int);
namespace detail {}

#include <zarnex/foundation.h>
