#pragma once

#include "core/PNT_2D_record.h"

/// A straight line between two points of the plane.
struct LINE_2D_record {
  PNT_2D_record start;
  PNT_2D_record end;
};
