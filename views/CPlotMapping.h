#pragma once

#include "core/Export.h"
#include "core/PNT_2D_record.h"
#include "platform/Geometry.h"

namespace coregui {

/// How world points become device pixels and back. Both axes are mapped on their own, each without a change
/// of direction inside it: if one x lies between two others, so does its pixel. Data reduction relies on
/// that.
class COREGUI_API CPlotMapping {
 public:
  virtual ~CPlotMapping() = default;

  /// The pixel of a world point; results beyond 32 bits saturate, NaN gives the pixel of a zero distance.
  virtual CPoint UserToWindow(PNT_2D_record const& p) const = 0;
  virtual PNT_2D_record WindowToUser(CPoint pt) const = 0;
  /// The same as UserToWindow without the step to whole pixels.
  virtual PNT_2D_record UserToDevice(PNT_2D_record const& p) const = 0;

 protected:
  CPlotMapping() = default;
  CPlotMapping(const CPlotMapping&) = default;
  CPlotMapping& operator=(const CPlotMapping&) = default;
};

}  // namespace coregui
