#pragma once

#include "core/Export.h"

/// The root of every class that the application derives from: polymorphic, destroyed through its base.
/// Windows and devices are not copied; records that are values (a grid cell) allow it themselves.
class COREGUI_API CObject {
 public:
  virtual ~CObject() = default;

 protected:
  CObject() = default;
  CObject(const CObject&) = default;
  CObject& operator=(const CObject&) = default;
};
