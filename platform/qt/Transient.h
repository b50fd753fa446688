#pragma once

#include <QPointer>
#include <memory>

#include "platform/qt/interop.h"

namespace coregui {

/// A dialog or menu of the toolkit that is shown in front of a window until a person is done with it. When
/// that window is destroyed meanwhile it takes the dialog along, which then is null here; otherwise the
/// dialog goes with this.
template <class T>
class Transient {
 public:
  /// `owner` may be null.
  explicit Transient(const CWnd* owner) : m_widget(std::make_unique<T>(WidgetOf(owner)).release()) {}
  ~Transient() { delete m_widget.data(); }
  Transient(const Transient&) = delete;
  Transient& operator=(const Transient&) = delete;

  explicit operator bool() const { return !m_widget.isNull(); }
  T& operator*() const { return *m_widget; }
  T* operator->() const { return m_widget.data(); }

 private:
  QPointer<T> m_widget;
};

}  // namespace coregui
