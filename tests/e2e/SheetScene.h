#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "e2e/StencilModel.h"
#include "e2e/support/Desktop.h"

namespace ormala::test {

inline constexpr Color stencilColor = 0x009FFF;
inline constexpr Color veilColor = 0x4F4F4F;

/// The program over a backdrop of one colour, on a profile of its own, ready for the user.
class SheetScene {
  public:
    static constexpr Color backdropColor = 0xFFFFFF;

    /// `options` may fill the options file before the start.
    explicit SheetScene(const std::function<void(SettingsFile&)>& options = {});

    [[nodiscard]] const Backdrop& backdrop() const { return backdrop_; }
    [[nodiscard]] const AppDataFolder& data() const { return data_; }
    [[nodiscard]] Program& program() { return *program_; }
    [[nodiscard]] DesktopWindow worksheet() const { return program_->worksheet(); }
    [[nodiscard]] DesktopWindow settings() const { return program_->settings(); }
    [[nodiscard]] DesktopWindow window(std::string_view className) const {
        return program_->window(className);
    }
    /// Ends the program and starts it again on the same profile. `between` is done while it does
    /// not run.
    void restart(const std::function<void()>& between = {});

    /// The stencil as it should be now; scenarios drag it along.
    StencilModel model;
    Mouse mouse;

    /// A worksheet pixel on the screen.
    [[nodiscard]] ScreenPoint onScreen(ScreenPoint sheet) const;
    /// Drags the grip at these shares of the model by (dx, dy); the model stays as it is.
    void drag(Spot shares, int dx, int dy, Modifiers modifiers = Modifiers::None);
    /// Puts the mouse where it touches no tool.
    void stepAside();
    /// What the worksheet shows, with the mouse aside.
    Picture picture();

    /// The colours on the screen in edit mode at the first transparency.
    // NOLINTNEXTLINE(readability-convert-member-functions-to-static): of this scene
    [[nodiscard]] Color lineColor() const { return blended(stencilColor, backdropColor, 191); }
    // NOLINTNEXTLINE(readability-convert-member-functions-to-static): of this scene
    [[nodiscard]] Color veil() const { return blended(veilColor, backdropColor, 191); }

    /// The pattern's lines lie where the model says: on exactly its pixels if it is unturned,
    /// within one pixel otherwise.
    void expectPattern(Color line);
    void expectPattern() { expectPattern(lineColor()); }

  private:
    /// Pixels of the worksheet that have the colour of a line, in one row and one column that cross
    /// the unturned pattern between its grips.
    struct LinePlaces {
        std::vector<int> inRow;
        std::vector<int> inColumn;

        bool operator==(const LinePlaces&) const = default;
    };

    [[nodiscard]] LinePlaces linePlaces(const Picture& picture, Color line) const;
    /// What is wrong with the turned pattern; empty if nothing is.
    [[nodiscard]] std::string faultOfTurned(const Picture& picture, Color line) const;
    void putMeasureAside();
    void start();

    Backdrop backdrop_;
    AppDataFolder data_;
    std::unique_ptr<Program> program_;
};

}  // namespace ormala::test
