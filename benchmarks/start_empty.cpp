// An empty frameless window of the splash's size, from its start to its first painting.
#include <QApplication>
#include <QWidget>
#include <cstdlib>

namespace {

class EmptyWindow : public QWidget {
  public:
    EmptyWindow() : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint) {
        setFixedSize(920, 560);
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override { std::_Exit(0); }
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    EmptyWindow window;
    window.show();
    return QApplication::exec();
}
