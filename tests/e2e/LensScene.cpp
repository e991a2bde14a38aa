#include "e2e/LensScene.h"

#include <algorithm>
#include <vector>

#include "e2e/SheetFrame.h"

namespace ormala::test {

namespace {

/// Around the cursor, with its pixel in the middle or just right of and below it, inside the
/// bounds.
int sourceStart(int cursor, int length, int low, int high) {
    return std::min(std::max(cursor - length / 2, low), high - length);
}

}  // namespace

void LensWindow::moveTo(ScreenPoint origin) const {
    test::moveTo(window_, origin);
}

LensView LensWindow::view(ScreenPoint cursor, int factor, bool grid) const {
    const ScreenRect image = part("picLens").rect();
    // The last lines of a grid lie outside.
    const int outside = grid && factor > 1 ? 1 : 0;
    const ScreenRect all = screen::virtualScreen();
    const int width = (image.width() + outside) / factor;
    const int height = (image.height() + outside) / factor;
    const int left = sourceStart(cursor.x, width, all.left, all.right);
    const int top = sourceStart(cursor.y, height, all.top, all.bottom);
    return {factor, {left, top, left + width, top + height}, image};
}

testing::AssertionResult LensWindow::showsScreen(ScreenPoint cursor, int factor) const {
    Difference last;
    const bool equal = waitUntil([&] {
        const LensView now = view(cursor, factor);
        const Picture expected = enlarged(screen::capture(now.source), factor, now.image.origin());
        if (expected.rect() != now.image) {
            return false;
        }
        last = difference(expected, screen::capture(now.image));
        return last.empty();
    });
    return equal ? testing::AssertionSuccess()
                 : testing::AssertionFailure() << "at factor " << factor << " and " << cursor
                                               << " the image differs: " << last;
}

Picture enlarged(const Picture& picture, int factor, ScreenPoint origin) {
    const ScreenRect from = picture.rect();
    const int width = from.width() * factor;
    const int height = from.height() * factor;
    std::vector<Color> pixels;
    pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            pixels.push_back(picture.at({from.left + x / factor, from.top + y / factor}));
        }
    }
    return {{origin.x, origin.y, origin.x + width, origin.y + height}, std::move(pixels)};
}

SettingsFile bareLens() {
    SettingsFile options;
    options.set("Options", "LensVisible", "-1");
    for (const char* key : {"LensCursorOn", "LensHotSpotOn", "LensGridOn"}) {
        options.set("Options", key, " 0");
    }
    // So that it covers neither the spot nor the control window at any resolution.
    options.set("FormLens", "Left", " 420");
    options.set("FormLens", "Top", " 120");
    options.set("FormLens", "Right", " 820");
    options.set("FormLens", "Bottom", " 500");
    return options;
}

LensScene::LensScene(const SettingsFile& options)
    : scene(ToolSet().stencil({100, 100, 300, 300}).file(), options, {BackdropPattern::Points, 0}),
      lens(scene.program().window("frmLens")) {
    lens.window().waitUntilVisible();
    scene.mouse.moveTo(spot);
}

testing::AssertionResult LensScene::showsScreenAround(ScreenPoint cursor, int factor) {
    constexpr int tries = 3;
    testing::AssertionResult shows = testing::AssertionFailure();
    for (int i = 0; i < tries && !shows; ++i) {
        scene.mouse.moveTo(cursor);
        shows = lens.showsScreen(cursor, factor);
    }
    return shows;
}

void LensScene::restart() {
    scene.restart();
    lens = LensWindow(scene.program().window("frmLens"));
    lens.window().waitUntilVisible();
}

DesktopWindow LensScene::openMenu() {
    scene.mouse.click(lens.part("picLens").center(), MouseButton::Right);
    return scene.menus().wait();
}

void LensScene::chooseFromMenu(LensEntry entry) const {
    const DesktopWindow menu = scene.menus().wait();
    scene.menus().walkDown(static_cast<int>(entry));
    keyboard::press(VK_RETURN);
    menu.waitUntilHidden();
}

void LensScene::choose(LensEntry entry) {
    openMenu();
    chooseFromMenu(entry);
}

void LensScene::chooseFactor(int factor) {
    const DesktopWindow menu = openMenu();
    scene.menus().walkDown(static_cast<int>(LensEntry::magnification));
    scene.menus().press(VK_RIGHT);
    scene.menus().walkDown(factor - 1);
    keyboard::press(VK_RETURN);
    menu.waitUntilHidden();
    requireSoon("factor", [&] {
        return lens.window().text().ends_with(" " + std::to_string(factor) + " X");
    });
}

}  // namespace ormala::test
