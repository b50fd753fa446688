#pragma once

/// A point of the plane in world units: x to the right, y upwards.
struct PNT_2D_record {
  double x = 0.0;
  double y = 0.0;
};
