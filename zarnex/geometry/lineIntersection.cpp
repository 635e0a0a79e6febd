// The functions stand in the header; the library exports the copies that it makes here.
#include <zarnex/geometry/lineIntersection.h>
