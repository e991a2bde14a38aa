#include "e2e/backdrop/BackdropReport.h"

#include <array>
#include <sstream>

namespace ormala::test {

namespace {

struct Field {
    std::string_view name;
    int BackdropReport::*value;
};

using Report = BackdropReport;

constexpr std::array fields{Field{"painted", &Report::painted},
                            Field{"leftDown", &Report::leftDown},
                            Field{"leftUp", &Report::leftUp},
                            Field{"rightDown", &Report::rightDown},
                            Field{"rightUp", &Report::rightUp},
                            Field{"middleDown", &Report::middleDown},
                            Field{"middleUp", &Report::middleUp},
                            Field{"doubleClicks", &Report::doubleClicks},
                            Field{"moves", &Report::moves},
                            Field{"dragMoves", &Report::dragMoves},
                            Field{"x", &Report::x},
                            Field{"y", &Report::y},
                            Field{"downX", &Report::downX},
                            Field{"downY", &Report::downY},
                            Field{"upX", &Report::upX},
                            Field{"upY", &Report::upY},
                            Field{"downModifiers", &Report::downModifiers},
                            Field{"wheel", &Report::wheel},
                            Field{"wheelModifiers", &Report::wheelModifiers},
                            Field{"keyDown", &Report::keyDown},
                            Field{"keyUp", &Report::keyUp},
                            Field{"lastKey", &Report::lastKey},
                            Field{"keyModifiers", &Report::keyModifiers},
                            Field{"lastCharacter", &Report::lastCharacter},
                            Field{"answer", &Report::answer}};

}  // namespace

std::string textOf(const BackdropReport& report) {
    std::ostringstream out;
    for (const Field& field : fields) {
        out << field.name << '=' << report.*field.value << ' ';
    }
    return out.str();
}

BackdropReport reportFromText(std::string_view text) {
    BackdropReport report;
    std::istringstream in{std::string(text)};
    for (std::string name; std::getline(in, name, '=');) {
        int value = 0;
        in >> value >> std::ws;
        for (const Field& field : fields) {
            if (field.name == name) {
                report.*field.value = value;
            }
        }
    }
    return report;
}

}  // namespace ormala::test
