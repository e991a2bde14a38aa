#include "e2e/SheetScene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace ormala::test {

namespace {

constexpr int colorTolerance = 2;
constexpr double section = 0.6180339887498949;

int pixelOf(double value) {
    return static_cast<int>(value < 0 ? std::ceil(value - 0.5) : std::floor(value + 0.5));
}

bool hasColor(const Picture& picture, ScreenPoint point, Color color) {
    const ScreenRect& area = picture.rect();
    const bool inside = point.x >= area.left && point.x < area.right && point.y >= area.top &&
                        point.y < area.bottom;
    return inside && channelDifference(picture.at(point), color) <= colorTolerance;
}

/// The four places of the pattern "Section double" along one direction.
std::vector<int> sectionPixels(double center, double half) {
    std::vector<int> places;
    for (const double share : {0.0, 1 - section, section, 1.0}) {
        // A side on the half pixel is rounded up, which the sum here may just miss.
        places.push_back(pixelOf(share * 2 * half + center - half + 1e-6));
    }
    return places;
}

}  // namespace

SheetScene::SheetScene(const std::function<void(SettingsFile&)>& options)
    : backdrop_({BackdropPattern::Solid, backdropColor}) {
    if (options) {
        SettingsFile file;
        options(file);
        file.write(data_.optionsFile());
    }
    start();
    const ScreenRect sheet = worksheet().clientRect();
    model = StencilModel::ofFirstStart(sheet.width(), sheet.height());
    if (settings().text() == "Ormala - Edit" || settings().text() == "Ormala - Bearbeiten") {
        putMeasureAside();
    }
}

void SheetScene::putMeasureAside() {
    // The first measurement tool comes up 24 pixels beside the centre, over the stencil.
    const ScreenPoint center = model.gripPixel(0, 0);
    const ScreenPoint common = onScreen({center.x + 24, center.y + 24});
    mouse.drag(common, onScreen({260, worksheet().clientRect().height() - 260}));
}

void SheetScene::start() {
    program_ = std::make_unique<Program>(data_);
    program_->waitUntilReady();
}

void SheetScene::restart(const std::function<void()>& between) {
    EXPECT_EQ(program_->close(), 0U);
    program_.reset();
    if (between) {
        between();
    }
    start();
}

ScreenPoint SheetScene::onScreen(ScreenPoint sheet) const {
    return worksheet().at(sheet.x, sheet.y);
}

void SheetScene::drag(Spot shares, int dx, int dy, Modifiers modifiers) {
    const ScreenPoint from = onScreen(model.gripPixel(shares.x, shares.y));
    mouse.drag(from, from + ScreenPoint{dx, dy}, 8, modifiers);
}

void SheetScene::stepAside() {
    mouse.moveTo(onScreen({30, 30}));
}

Picture SheetScene::picture() {
    stepAside();
    return screen::waitUntilStill(worksheet().clientRect());
}

void SheetScene::expectPattern(Color line) {
    if (model.angle == 0) {
        const LinePlaces expected{sectionPixels(model.center.x, model.halfWidth),
                                  sectionPixels(model.center.y, model.halfHeight)};
        LinePlaces seen;
        waitUntil([&] {
            seen = linePlaces(picture(), line);
            return seen == expected;
        });
        EXPECT_EQ(seen.inRow, expected.inRow);
        EXPECT_EQ(seen.inColumn, expected.inColumn);
    } else {
        std::string fault;
        waitUntil([&] {
            fault = faultOfTurned(picture(), line);
            return fault.empty();
        });
        EXPECT_EQ(fault, "");
    }
}

SheetScene::LinePlaces SheetScene::linePlaces(const Picture& picture, Color line) const {
    const ScreenPoint origin = picture.rect().origin();
    // Between the grips: a quarter from the corner, where only the pattern's lines cross.
    const int row = origin.y + pixelOf(model.center.y - model.halfHeight / 2);
    const int column = origin.x + pixelOf(model.center.x - model.halfWidth / 2);
    LinePlaces places;
    for (int x = picture.rect().left; x < picture.rect().right; ++x) {
        if (hasColor(picture, {x, row}, line)) {
            places.inRow.push_back(x - origin.x);
        }
    }
    for (int y = picture.rect().top; y < picture.rect().bottom; ++y) {
        if (hasColor(picture, {column, y}, line)) {
            places.inColumn.push_back(y - origin.y);
        }
    }
    return places;
}

std::string SheetScene::faultOfTurned(const Picture& picture, Color line) const {
    const ScreenPoint origin = picture.rect().origin();
    const auto lineIsNear = [&](Spot spot) {
        for (int dx = -1; dx <= 1; ++dx) {
            for (int dy = -1; dy <= 1; ++dy) {
                const ScreenPoint point{origin.x + pixelOf(spot.x) + dx,
                                        origin.y + pixelOf(spot.y) + dy};
                if (hasColor(picture, point, line)) {
                    return true;
                }
            }
        }
        return false;
    };
    // Along all lines, but for the neighbourhood of corners, middles and crossings.
    const double inner = 2 * section - 1;
    for (const double along : {-0.85, -0.6, -0.4, 0.4, 0.6, 0.85}) {
        for (const double across : {-1.0, -inner, inner, 1.0}) {
            if (!lineIsNear(model.at(along, across)) || !lineIsNear(model.at(across, along))) {
                return "no line at " + std::to_string(along) + ", " + std::to_string(across);
            }
        }
    }
    const double beyond = 1 + 5 / std::min(model.halfWidth, model.halfHeight);
    for (const double along : {-0.6, 0.6}) {
        if (lineIsNear(model.at(along, beyond)) || lineIsNear(model.at(beyond, along))) {
            return "a line beyond the side at " + std::to_string(along);
        }
    }
    return {};
}

}  // namespace ormala::test
