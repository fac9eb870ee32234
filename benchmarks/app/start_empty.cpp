// What a Qt Widgets program costs that shows nothing.

#include <QApplication>

#include "benchmarks/app/first_frame.h"
#include "widgets/next_frame.h"

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(1320, 880);
    kalvo::widgets::afterNextFrame(window, kalvo::benchmarks::endAtFirstFrame);
    window.show();
    return QApplication::exec();
}
