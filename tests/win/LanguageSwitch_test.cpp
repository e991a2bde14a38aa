#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "app/win/shell/Program.h"
#include "e2e/support/AppDataFolder.h"
#include "e2e/support/SettingsFile.h"
#include "language/TextTable.h"
#include "platform/win/StandardControl.h"
#include "win/EnglishTexts.h"
#include "win/ModalPlayer.h"
#include "win/WindowTextRows.h"
#include "win/WindowTexts.h"

namespace ormala {
namespace {

/// The program with everything that it can open, in English.
class LanguageSwitch : public testing::Test {
  protected:
    LanguageSwitch() {
        test::SettingsFile options;
        options.set("Options", "Language", std::to_string(languageEnglish));
        options.write(folder_.optionsFile());
        program_ = std::make_unique<Program>(false);
        settings_ = &program_->settings();
        program_->state().set([](Options& shown) {
            shown.lensVisible = true;
            shown.lens.sticked = false;
        });
        loadDialogs();
    }

    /// Waits for a dialog and closes it.
    void leave(const std::string& dialog) {
        player_.untilActive(dialog).then([] { PostMessageW(GetActiveWindow(), WM_CLOSE, 0, 0); });
    }
    static void click(HWND window, const char* name) {
        SendMessageW(namedChild(window, name), BM_CLICK, 0, 0);
    }
    static void clickHere(const char* name) {
        PostMessageW(namedChild(GetActiveWindow(), name), BM_CLICK, 0, 0);
    }
    /// Every dialog is opened once, and stays loaded.
    void loadDialogs() {
        const struct {
            const char* button;
            const char* dialog;
        } opened[] = {{"cmdColor", "frmColor"},
                      {"cmdLineStyle", "frmLineStyle"},
                      {"cmdSelectPattern", "frmPatternSelect"},
                      {"cmdEditRatio", "frmRatio"},
                      {"cmdUnits", "frmUnit"}};
        for (const auto& [button, dialog] : opened) {
            leave(dialog);
            click(settings_->handle(), button);
        }
        player_.untilActive("frmOptions").then([] { clickHere("cmdAbout"); });
        leave("frmAbout");
        player_.untilActive("frmOptions").then([] { clickHere("cmdHotSpotDrawColor"); });
        leave("frmColor");
        leave("frmOptions");
        program_->view().ShowOptions(2);
    }
    /// As the user does it.
    void chooseLanguage(int language) {
        const char* const option =
            language == languageEnglish ? "optLanguage(0)" : "optLanguage(1)";
        player_.untilActive("frmOptions")
            .then([option] { click(GetActiveWindow(), option); })
            .then([] { clickHere("cmdOK"); });
        program_->view().ShowOptions(0);
    }

    test::AppDataFolder folder_;
    EnglishTexts english_;
    ModalPlayer player_;
    std::unique_ptr<Program> program_;
    frmSettings* settings_ = nullptr;
};

/// The row of the current language, or the English one where that language has none.
std::string rowText(int id) {
    const auto rows = englishTexts();
    const auto english = std::ranges::find(rows, id, &TextRow::id);
    return english != rows.end() ? MlString(id, english->text) : "no row " + std::to_string(id);
}

/// With each "{156}" replaced by its row.
std::string withRows(std::string_view pattern) {
    std::string text;
    while (true) {
        const std::size_t open = pattern.find('{');
        text += pattern.substr(0, open);
        if (open == std::string_view::npos) {
            return text;
        }
        const std::size_t close = pattern.find('}', open);
        text += rowText(std::stoi(std::string(pattern.substr(open + 1, close - open - 1))));
        pattern.remove_prefix(close + 1);
    }
}

/// Compares the texts of all windows with those of the current language.
class TextCheck {
  public:
    /// While they are English: notes what is the same in all languages.
    TextCheck() {
        for (const WindowText& shown : windowTexts()) {
            if (const WindowTextRow* row = rowOf(shown.place); row != nullptr && isOpen(*row)) {
                const std::string start = withRows(startOf(*row));
                EXPECT_TRUE(shown.text.starts_with(start)) << shown.place << ": " << shown.text;
                rests_[shown.window] = shown.text.substr(std::min(start.size(), shown.text.size()));
            }
        }
    }

    void expectAll() const {
        std::set<std::string_view> met;
        for (const WindowText& shown : windowTexts()) {
            const WindowTextRow* row = rowOf(shown.place);
            ASSERT_NE(row, nullptr) << shown.place << " says '" << shown.text << "'";
            met.insert(row->place);
            EXPECT_EQ(shown.text, expected(*row, shown.window)) << shown.place;
            EXPECT_EQ(shown.tip, row->tip != 0 ? rowText(row->tip) : "") << shown.place;
        }
        for (const WindowTextRow& row : windowTextRows()) {
            EXPECT_TRUE(met.contains(row.place)) << row.place << " is nowhere";
        }
    }

  private:
    static const WindowTextRow* rowOf(const std::string& place) {
        const auto rows = windowTextRows();
        const auto found = std::ranges::find(rows, place, &WindowTextRow::place);
        return found != rows.end() ? &*found : nullptr;
    }
    static bool isOpen(const WindowTextRow& row) { return row.text.ends_with('*'); }
    static std::string_view startOf(const WindowTextRow& row) {
        return row.text.substr(0, row.text.size() - (isOpen(row) ? 1 : 0));
    }
    [[nodiscard]] std::string expected(const WindowTextRow& row, HWND window) const {
        const auto rest = rests_.find(window);
        return withRows(startOf(row)) + (rest != rests_.end() ? rest->second : "");
    }

    std::map<HWND, std::string> rests_;
};

std::vector<std::string> rowTexts(std::initializer_list<int> ids) {
    std::vector<std::string> texts;
    std::ranges::transform(ids, std::back_inserter(texts), &rowText);
    return texts;
}

void expectMenus(const frmSettings& settings, const frmMenu& menu) {
    EXPECT_EQ(captionsOf(menu.mnuPopup()),
              rowTexts({57, 58, 60, 61, 62, 63, 64, 80, 340, 341, 342, 83, 84}));
    EXPECT_EQ(captionsOf(menu.mnuLens()), rowTexts({65, 66, 77, 78, 79, 80, 81, 82, 83}));
    auto system = captionsOf(GetSystemMenu(settings.handle(), FALSE));
    ASSERT_GE(system.size(), 3U);
    system.erase(system.begin(), system.end() - 3);
    EXPECT_EQ(system, rowTexts({156, 60, 162}));
}

/// The use of each special ratio stands at the end of its row; 0 for one without a row of its own.
void expectRatios() {
    constexpr int uses[] = {268, 0, 269, 270, 271, 272, 273, 274, 275, 276, 0, 276};
    const auto rows = rowsOf(namedChild(windowsOfClass("frmRatio").at(0), "lstRatio"));
    ASSERT_GE(rows.size(), std::size(uses));
    for (std::size_t i = 0; i < std::size(uses); ++i) {
        if (uses[i] != 0) {
            EXPECT_TRUE(rows[i].ends_with("\t" + rowText(uses[i]))) << rows[i];
        }
    }
}

void expectRotations() {
    const HWND dialog = windowsOfClass("frmPatternSelect").at(0);
    const auto rows = rowsOf(namedChild(dialog, "cboRotation"));
    ASSERT_FALSE(rows.empty());
    EXPECT_TRUE(rows.front().starts_with(rowText(319))) << rows.front();
}

TEST_F(LanguageSwitch, ReachesEveryTextOfEveryWindowAndBack) {
    const TextCheck check;
    check.expectAll();
    for (const int language : {languageGerman, languageEnglish}) {
        chooseLanguage(language);
        ASSERT_EQ(CurrentLanguage(), language);
        check.expectAll();
        expectMenus(*settings_, program_->view().menu());
        expectRatios();
        expectRotations();
    }
}

TEST_F(LanguageSwitch, ReachesTheCaptionOfEveryMode) {
    chooseLanguage(languageGerman);
    constexpr int captions[] = {303, 304, 305};
    for (const Mode mode : {Mode::pause, Mode::templateMode, Mode::edit}) {
        program_->modes().SetMode(mode, false);
        EXPECT_EQ(textOf(settings_->handle()), "Ormala" + rowText(captions[numberOf(mode)]));
    }
}

TEST_F(LanguageSwitch, CancelLeavesEverythingAsItWas) {
    const TextCheck check;
    player_.untilActive("frmOptions")
        .then([] { click(GetActiveWindow(), "optLanguage(1)"); })
        .then([] { clickHere("cmdCancel"); });
    program_->view().ShowOptions(0);
    EXPECT_EQ(CurrentLanguage(), languageEnglish);
    check.expectAll();
}

TEST_F(LanguageSwitch, ReachesPanelsThatAreMadeAfterIt) {
    chooseLanguage(languageGerman);
    std::set<std::string> titles;
    const auto noteTitles = [&titles] {
        for (const WindowText& shown : windowTexts()) {
            if (shown.place.ends_with("/lblTitle")) {
                titles.insert(shown.text);
            }
        }
        return titles.size();
    };
    click(settings_->handle(), "cmdAddGrid");
    click(settings_->handle(), "cmdAddMeasure");
    constexpr std::size_t different = 3;
    // The last panel is scrolled into view once it shows what it has to show.
    EXPECT_TRUE(test::waitUntil([&] { return noteTitles() == different; }));
    EXPECT_EQ(titles,
              (std::set<std::string>{rowText(325) + "1", rowText(325) + "2", rowText(209)}));
}

}  // namespace
}  // namespace ormala
