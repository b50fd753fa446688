#include "platform/CSliderCtrl.h"

#include <QSlider>
#include <functional>
#include <utility>

#include "platform/qt/Application.h"
#include "platform/qt/ControlWindow.h"
#include "platform/qt/ScrollCodes.h"

namespace {

class SliderWindow : public coregui::ControlWindow {
 public:
  SliderWindow(CWnd& window, const CREATESTRUCT& create, std::function<void(int)> moved)
      : ControlWindow(
            window, create,
            std::make_unique<QSlider>((create.style & TBS_VERT) != 0 ? Qt::Vertical : Qt::Horizontal)),
        m_moved(std::move(moved)) {
    Slider().setRange(0, 100);
    Slider().setPageStep(20);
    if ((create.style & TBS_AUTOTICKS) != 0) Slider().setTickPosition(QSlider::TicksBelow);
    // Larger positions lie further down, as the parent of a vertical one expects.
    Slider().setInvertedAppearance((create.style & TBS_VERT) != 0);
    Slider().setInvertedControls((create.style & TBS_VERT) != 0);
    connect(&Slider(), &QAbstractSlider::actionTriggered, this, [this](int action) { m_action = action; });
    connect(&Slider(), &QAbstractSlider::valueChanged, this, [this] { NoteMove(); });
    connect(&Slider(), &QAbstractSlider::sliderReleased, this, [this] { NoteRelease(); });
  }
  QSlider& Slider() const { return static_cast<QSlider&>(*GetWidget()); }

 private:
  void NoteMove() {
    const QPointer<QObject> self(this);
    m_moved(Slider().value());
    if (self) Tell(coregui::ScrollCodeOf(m_action));
    if (self && !Slider().isSliderDown()) Tell(SB_ENDSCROLL);
  }
  void NoteRelease() {
    const QPointer<QObject> self(this);
    Tell(SB_THUMBPOSITION);
    if (self) Tell(SB_ENDSCROLL);
  }
  void Tell(int code) {
    if (GetWidget() == nullptr) return;
    coregui::TellScroll(Window(), (Window().GetStyle() & TBS_VERT) != 0, code, Slider().value());
  }
  std::function<void(int)> m_moved;
  int m_action = QAbstractSlider::SliderNoAction;
};

QSlider* SliderOf(const CSliderCtrl& control) {
  const auto* native = coregui::NativeOf<SliderWindow>(control);
  return native == nullptr ? nullptr : &native->Slider();
}

}  // namespace

BOOL CSliderCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
  return Create(L"SLIDER", L"", style, rect, parent, id);
}

std::unique_ptr<coregui::NativeWindow> CSliderCtrl::MakeNative(const CREATESTRUCT& create) {
  coregui::EnsureApplication();
  return std::make_unique<SliderWindow>(*this, create, [this](int position) { OnMoved(position); });
}

void CSliderCtrl::OnMoved(int /*position*/) {}

void CSliderCtrl::SetRange(int minimum, int maximum, BOOL /*redraw*/) {
  if (auto* slider = SliderOf(*this)) {
    const QSignalBlocker quiet(slider);
    slider->setRange(minimum, maximum);
  }
}

int CSliderCtrl::GetRangeMin() const {
  const auto* slider = SliderOf(*this);
  return slider == nullptr ? 0 : slider->minimum();
}

int CSliderCtrl::GetRangeMax() const {
  const auto* slider = SliderOf(*this);
  return slider == nullptr ? 0 : slider->maximum();
}

void CSliderCtrl::SetPos(int position) {
  if (auto* slider = SliderOf(*this)) {
    const QSignalBlocker quiet(slider);
    slider->setValue(position);
    slider->update();
  }
}

int CSliderCtrl::GetPos() const {
  const auto* slider = SliderOf(*this);
  return slider == nullptr ? 0 : slider->value();
}

void CSliderCtrl::SetLineSize(int size) {
  if (auto* slider = SliderOf(*this)) slider->setSingleStep(size);
}

void CSliderCtrl::SetPageSize(int size) {
  if (auto* slider = SliderOf(*this)) slider->setPageStep(size);
}

void CSliderCtrl::SetTicFreq(int frequency) {
  if (auto* slider = SliderOf(*this)) slider->setTickInterval(frequency);
}
