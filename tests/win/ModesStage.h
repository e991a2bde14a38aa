#pragma once

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string_view>

#include "app/win/shell/Program.h"
#include "e2e/support/AppDataFolder.h"
#include "e2e/support/SettingsFile.h"
#include "platform/win/regions.h"
#include "support/win/Wait.h"
#include "win/HeldKeys.h"

namespace ormala {

inline int widthOf(const RECT& rect) {
    return static_cast<int>(rect.right - rect.left);
}

inline int heightOf(const RECT& rect) {
    return static_cast<int>(rect.bottom - rect.top);
}

/// The program with an options file that a test can fill before the start.
class ModesStage : public testing::Test {
  protected:
    void option(std::string_view section, std::string_view key, std::string_view value) {
        file_.set(section, key, value);
    }

    Program& start(bool anotherRuns = false) {
        file_.write(folder_.optionsFile());
        program_.emplace(anotherRuns);
        settings_ = &program_->settings();
        return *program_;
    }

    test::SettingsFile end() {
        SendMessageW(settings_->handle(), WM_ENDSESSION, TRUE, 0);
        program_.reset();
        return test::SettingsFile::read(folder_.optionsFile());
    }

    /// As the options dialog does.
    void keepBorder() {
        OptionValues values = program_->view().optionValues();
        values.templateWithBorder = true;
        program_->view().applyOptions(values);
    }

    bool worksheetFillsScreen() {
        RECT work{};
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
        return test::waitUntil(
            [&] { return fromRect(program_->worksheet().rectangle()) == fromRect(work); });
    }

    bool worksheetLiesInTheFrame() {
        return test::waitUntil([&] {
            const RECT client = program_->resizer().clientRectangle();
            POINT corner{5, 5};
            ClientToScreen(program_->resizer().handle(), &corner);
            const RECT place = program_->worksheet().rectangle();
            return place.left == corner.x && place.top == corner.y &&
                   widthOf(place) == client.right - 10 && heightOf(place) == client.bottom - 10;
        });
    }

    /// What is shown: worksheet, frame, and whether the worksheet takes the mouse.
    std::array<bool, 3> shown() {
        return {program_->worksheet().isVisible(), program_->resizer().isVisible(),
                program_->worksheet().Clickable()};
    }

    int height() { return heightOf(settings_->rectangle()); }

    int shortHeight() {
        MINMAXINFO limits{};
        SendMessageW(settings_->handle(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
        return static_cast<int>(limits.ptMinTrackSize.y);
    }

    void press(int key) {
        MSG message{};
        message.hwnd = settings_->handle();
        message.message = WM_KEYDOWN;
        message.wParam = static_cast<WPARAM>(key);
        EXPECT_TRUE(program_->preview(message));
    }

    test::AppDataFolder folder_;
    test::SettingsFile file_;
    std::optional<Program> program_;
    frmSettings* settings_ = nullptr;
};

}  // namespace ormala
