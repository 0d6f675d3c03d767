// An empty frameless window that paints a square under the pointer at each move of the mouse: the
// toolkit's own way from an event to the screen.
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QWidget>

namespace {

class SquareWindow : public QWidget {
  public:
    SquareWindow() : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint) {
        setWindowTitle("Empty");
        setFixedSize(920, 560);
        setMouseTracking(true);
    }

  protected:
    void mouseMoveEvent(QMouseEvent* event) override {
        const QRect before = square_;
        square_.moveCenter(event->position().toPoint());
        update(before | square_);
    }
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.fillRect(square_, Qt::red);
    }

  private:
    QRect square_{0, 0, 32, 32};
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    SquareWindow window;
    window.show();
    return QApplication::exec();
}
