#pragma once

#include <memory>
#include <vector>

#include "app/ToolMaker.h"
#include "app/keyTables.h"
#include "platform/win/BackBuffer.h"
#include "stencil/ctlRatioGrid.h"
#include "support/OwnToolSettings.h"
#include "worksheet/win/frmWorksheet.h"

namespace ormala {

constexpr PixelSize sheetSize{640, 480};
/// Of SetWindowPos: what places a window and does nothing else to it.
constexpr UINT quietly = SWP_NOZORDER | SWP_NOACTIVATE;

/// The pixels of a device context as 0x00BBGGRR, row by row.
struct PixelMap {
    PixelSize size;
    std::vector<COLORREF> pixels;

    [[nodiscard]] COLORREF at(int x, int y) const {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width) +
                      static_cast<std::size_t>(x)];
    }
    bool operator==(const PixelMap&) const = default;
};

PixelMap readPixels(HDC context, PixelSize size);
/// What a window's client area shows.
PixelMap readClient(HWND window);

/// Notes what a worksheet asks for.
class NotedCommands : public WorksheetCommands {
  public:
    void execute(Command command) override { executed.push_back(command); }
    bool takeKey(int key, int modifiers) override {
        const auto command = commandOfKey(key, modifiers, KeyWindow::worksheet);
        if (command) {
            executed.push_back(*command);
        }
        return command.has_value();
    }
    void raiseControlWindowAt(POINT screen) override { raisedAt.push_back(screen); }
    bool raiseLens(bool onlySticked) override {
        lensRaises.push_back(onlySticked);
        return lensShown;
    }
    void ShowContextMenu(POINT screen) override { menusAt.push_back(screen); }
    void closeProgram() override { ++closes; }

    std::vector<Command> executed;
    std::vector<POINT> raisedAt;
    std::vector<POINT> menusAt;
    /// The magnifier, asked to be raised.
    bool lensShown = false;
    std::vector<bool> lensRaises;
    int closes = 0;
};

/// A worksheet of a given size with stencils on it, apart from the rest of the program.
class TestSheet {
  public:
    explicit TestSheet(PixelSize size);

    frmWorksheet& window() { return *window_; }
    [[nodiscard]] const frmWorksheet& window() const { return *window_; }
    ctlRatioGrid& addStencil(const Rect& rect, double angle, Color color);
    /// A mouse message at a client position.
    void mouse(UINT message, WPARAM buttons, int x, int y);
    void drag(int fromX, int fromY, int toX, int toY, int steps);

    /// Draws everything anew.
    void paintAnew();

    NotedCommands commands;
    OwnToolSettings settings;
    AidOptions aids{{}, false, false};
    ForegroundMemory foreground;

  private:
    SpecialRatios ratios_;
    ToolMaker maker_{settings, ratios_};
    std::unique_ptr<frmWorksheet> window_;
};

}  // namespace ormala
