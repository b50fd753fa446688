// Shows an empty widget and says when its first frame is there: what any program over the toolkit needs
// before it has shown anything.

#include <QApplication>
#include <QWidget>
#include <cstdio>
#include <cstdlib>

namespace {

class Window : public QWidget {
 public:
  bool painted = false;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override { painted = true; }
};

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  Window window;
  window.resize(1600, 1000);
  window.show();
  while (!window.painted) QCoreApplication::processEvents();
  QCoreApplication::processEvents();
  std::puts("frame");
  std::fflush(stdout);
  std::_Exit(0);
}
