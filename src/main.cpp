#include "app/BrimlightApp.h"

int main(int argc, char **argv)
{
    return brimlight::BrimlightApp::run(argc, argv);
}
