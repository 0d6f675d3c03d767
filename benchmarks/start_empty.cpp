// An empty frameless window of the splash's size, from its start to its first painting.
//   start_empty SCALE
#include <QApplication>
#include <QWidget>
#include <cstdlib>

namespace {

class EmptyWindow : public QWidget {
  public:
    explicit EmptyWindow(double scale) : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint) {
        setFixedSize(static_cast<int>(460 * scale), static_cast<int>(280 * scale));
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override { std::_Exit(0); }
};

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        return 2;
    }
    QApplication application(argc, argv);
    EmptyWindow window(std::atof(argv[1]));
    window.show();
    return QApplication::exec();
}
