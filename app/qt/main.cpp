#include "app/qt/run_application.h"

int main(int argc, char** argv) { return kalvo::app::runApplication(argc, argv); }
