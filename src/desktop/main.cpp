#include "desktop/Desktop.h"

int main(int argc, char** argv) {
    return iceline::desktop::run(argc, argv);
}
