#pragma once

#include "Suite.h"

namespace bench {

// The rows of each topic; the bodies stand in rows/.

void listRows(Suite& suite);
void arrayRows(Suite& suite);
void sortRows(Suite& suite);
void stringRows(Suite& suite);
void encodingRows(Suite& suite);
void quantityRows(Suite& suite);
void threadRows(Suite& suite);
void pointRows(Suite& suite);
void geometryRows(Suite& suite);
void outlineRows(Suite& suite); // of the topic geometry, as the next
void rootRows(Suite& suite);
void transformRows(Suite& suite);
void matrixRows(Suite& suite); // of the topic transforms, as the next
void chainRows(Suite& suite);
void randomRows(Suite& suite);
void identifierRows(Suite& suite);
void bigIntegerRows(Suite& suite);

} // namespace bench
