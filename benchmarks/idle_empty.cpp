// An empty frameless window that stays, for the comparison of idle costs.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window(nullptr, Qt::Window | Qt::FramelessWindowHint);
    window.setWindowTitle("Empty");
    window.setFixedSize(920, 560);
    window.show();
    return QApplication::exec();
}
