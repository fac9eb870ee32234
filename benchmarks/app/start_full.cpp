// The application up to the first frame of its full window.

#include "benchmarks/app/first_frame.h"
#include "tools/support/tool_application.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    kalvo::tools::NoNetwork network;
    kalvo::tools::ToolApplication kalvo(network);
    const kalvo::app::MainScreen& screen = kalvo.openScreen();
    const kalvo::benchmarks::EndAfterFirstFrame end(*screen.window());
    return QApplication::exec();
}
