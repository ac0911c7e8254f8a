#include "kelpower.h"

// The last array of each record keeps its address: the record's counts and that pointer stay what they were.

extern "C" void FreeMemXYPlot(XYPlot* record) {
  delete[] record->x;
  record->x = nullptr;
  delete[] record->y;
}

extern "C" void FreeMemXYZPlot(XYZPlot* record) {
  delete[] record->x;
  record->x = nullptr;
  delete[] record->y;
  record->y = nullptr;
  delete[] record->z;
}
