// A window with one line of text: what a program of this toolkit that shows a text costs.
#include "firstpaint.h"

#include <QLabel>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.resize(1000, 600);
    QLabel line(QStringLiteral("One line of text"), &window);
    FirstPaint watch(&window);
    window.show();
    return QApplication::exec();
}
