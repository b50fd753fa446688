// Shows an empty table in the toolkit's view over a lean model, and says when its first frame is there.

#include <QAbstractTableModel>
#include <QApplication>
#include <QTableView>
#include <cstdio>
#include <cstdlib>

namespace {

class EmptyModel : public QAbstractTableModel {
 public:
  int rowCount(const QModelIndex& /*parent*/) const override { return 16384; }
  int columnCount(const QModelIndex& /*parent*/) const override { return 256; }
  QVariant data(const QModelIndex& /*index*/, int /*role*/) const override { return {}; }
};

class View : public QTableView {
 public:
  bool painted = false;

 protected:
  void paintEvent(QPaintEvent* event) override {
    QTableView::paintEvent(event);
    painted = true;
  }
};

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  EmptyModel model;
  View view;
  view.setModel(&model);
  view.resize(1600, 1000);
  view.show();
  while (!view.painted) QCoreApplication::processEvents();
  QCoreApplication::processEvents();
  std::puts("frame");
  std::fflush(stdout);
  std::_Exit(0);
}
