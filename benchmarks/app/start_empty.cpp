// What a Qt Widgets program costs that shows nothing.

#include <QApplication>

#include "benchmarks/app/first_frame.h"
#include "ui/after_paint.h"

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(1320, 880);
    kalvo::ui::afterNextPaint(window, kalvo::benchmarks::endAtFirstFrame);
    window.show();
    return QApplication::exec();
}
