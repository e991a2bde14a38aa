#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>

#include "benchmarks.h"

namespace {

void runWanted(int argc, char** argv) {
    using namespace ormala;
    const auto wanted = [&](const char* name) {
        return argc < 2 || std::strcmp(argv[1], name) == 0;
    };
    constexpr PixelSize sizes[] = {{1920, 1080}, {3840, 2160}};
    for (const PixelSize size : sizes) {
        if (wanted("drag")) {
            bench::dragStep(size);
        }
        if (wanted("hover")) {
            bench::hoverMoves(size);
        }
        if (wanted("template")) {
            bench::templatePicture(size);
        }
    }
    if (wanted("grid")) {
        bench::gridRepaint();
    }
    if (wanted("crosshair")) {
        bench::crossHairMoves();
    }
    if (wanted("files")) {
        bench::toolFiles();
    }
    if (wanted("add")) {
        bench::addedTools();
    }
    if (wanted("panels")) {
        bench::controlWindow();
    }
    if (wanted("wheel")) {
        bench::wheel();
    }
    if (wanted("flood")) {
        bench::flood();
    }
    if (wanted("start")) {
        bench::start();
    }
    if (wanted("memory")) {
        bench::memory();
    }
    if (wanted("idle")) {
        bench::idlePanels();
        bench::idle();
    }
    if (wanted("lens")) {
        bench::lens();
    }
    // These take minutes, and only when they are asked for.
    if (argc > 1 && wanted("lens-soak")) {
        bench::lensSoak();
    }
    if (argc > 1 && wanted("soak")) {
        bench::soak(argc > 2 ? std::max(1, std::atoi(argv[2])) : 1);
    }
}

}  // namespace

int main(int argc, char** argv) {
    try {
        runWanted(argc, argv);
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
