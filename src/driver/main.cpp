#include "driver/command_line.h"

int main(int argc, char** argv) { return mero::run_command_line(argc, argv); }
