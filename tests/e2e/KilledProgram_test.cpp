#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <random>
#include <sstream>

#include "e2e/EndedByForce.h"
#include "e2e/PanelScene.h"
#include "e2e/support/StageFailure.h"
#include "support/win/fileBytes.h"

// The program itself is killed at random moments: of saving its options and its tools, and of the
// work of a day.

namespace ormala::test {
namespace {

constexpr int usualKills = 50;
constexpr int usualDayKills = 6;
/// So many saves are asked for, and the kill comes amid the first ones.
constexpr int savesAhead = 8;
constexpr int savesBeforeKill = 4;

int numberOr(const char* variable, int fallback) {
    const char* const text = std::getenv(variable);
    return text != nullptr ? std::atoi(text) : fallback;
}

/// The file without its values: what a whole one has, whatever they are.
std::string namesIn(const std::filesystem::path& path) {
    std::istringstream lines(bytesOf(path));
    std::string names;
    for (std::string line; std::getline(lines, line);) {
        names += line.substr(0, line.find('=')) + "\n";
    }
    return names;
}

class KilledProgram : public testing::Test {
  protected:
    static constexpr const char* moveRight = "cmdMove(1)";

    KilledProgram() {
        ToolSet tools;
        for (int i = 0; i < 8; ++i) {
            tools.stencil({100 + 10 * i, 100, 300, 300});
        }
        tools.file().write(data_.toolsFile());
        SettingsFile options;
        options.set("Options", "Language", " 9");
        options.write(data_.optionsFile());
        Program program(data_);
        waitForLoad(program);
        EXPECT_EQ(program.close(), 0U);
        names_ = {namesIn(data_.toolsFile()), namesIn(data_.optionsFile())};
        saved_ = placeInFile();
        files_ = filesInFolder();
    }

    static void waitForLoad(const Program& program) {
        requireSoon(
            "end of the program's load",
            [&] { return program.settings().hasProperty(L"Ready") && firstMove(program).exists(); },
            milliseconds{20000});
    }

    static unsigned seed() {
        const auto given = static_cast<unsigned>(GTEST_FLAG_GET(random_seed));
        const unsigned seed = given != 0 ? given : std::random_device()() % 99999 + 1;
        std::printf("again with --gtest_random_seed=%u\n", seed);
        return seed;
    }

    /// Of the first panel.
    static DesktopWindow firstMove(const Program& program) {
        return program.settings().named("picInner").child("ctlSetRatioGrid").named(moveRight);
    }

    /// Moves a tool and toggles an option, and has the session ask whether it may end, at which the
    /// program saves everything.
    static void saveOverAndOver(const Program& program) {
        const DesktopWindow settings = program.settings();
        const DesktopWindow move = firstMove(program);
        const DesktopWindow grid = settings.named("chkGrid");
        for (int i = 0; i < savesAhead; ++i) {
            move.post(BM_CLICK);
            grid.post(BM_CLICK);
            settings.post(WM_QUERYENDSESSION);
            settings.post(WM_ENDSESSION, FALSE);
        }
    }

    /// Moves a tool, and returns when that is saved.
    void save(const Program& program) {
        firstMove(program).send(BM_CLICK);
        EXPECT_EQ(program.settings().send(WM_QUERYENDSESSION), 1);
        program.settings().send(WM_ENDSESSION, FALSE);
        const double now = placeInFile();
        EXPECT_GT(now, saved_) << "each save is another one";
        saved_ = now;
    }

    /// Where the first tool lies; it only moves to the right.
    [[nodiscard]] double placeInFile() const {
        return SettingsFile::read(data_.toolsFile()).number("Tool 1", "RectBoundLeft").value_or(-1);
    }

    void expectNothingLost() {
        EXPECT_EQ(namesIn(data_.toolsFile()), names_[0]);
        EXPECT_EQ(namesIn(data_.optionsFile()), names_[1]);
        const double now = placeInFile();
        EXPECT_GE(now, saved_) << "what was saved stays";
        saved_ = now;
    }

    [[nodiscard]] std::ptrdiff_t filesInFolder() const {
        const std::filesystem::directory_iterator entries(data_.optionsFile().parent_path());
        return std::distance(begin(entries), end(entries));
    }

    AppDataFolder data_;
    std::array<std::string, 2> names_;
    double saved_ = 0;
    /// The program's own ones, with those of the last run.
    std::ptrdiff_t files_ = 0;
};

TEST_F(KilledProgram, LosesNothingThatItHadSaved) {
    using Clock = std::chrono::steady_clock;
    using Microseconds = std::chrono::microseconds;
    const unsigned seed = KilledProgram::seed();
    std::mt19937 random(seed);
    const int kills = numberOr("ORMALA_KILLS", usualKills);
    int amidSaving = 0;
    for (int kill = 1; kill <= kills && !HasFailure(); ++kill) {
        SCOPED_TRACE("kill " + std::to_string(kill) + ", seed " + std::to_string(seed));
        const Program program(data_);
        waitForLoad(program);
        const auto start = Clock::now();
        save(program);
        const auto ofOne = std::chrono::duration_cast<Microseconds>(Clock::now() - start).count();
        const Microseconds moment(random() % (savesBeforeKill * ofOne));
        saveOverAndOver(program);
        const auto end = Clock::now() + moment;
        while (Clock::now() < end) {
        }
        endByForce(program);
        amidSaving += filesInFolder() > files_ ? 1 : 0;
        expectNothingLost();
    }
    std::printf("%d of %d kills left a temporary file behind\n", amidSaving, kills);
    const Program program(data_);
    waitForLoad(program);
    EXPECT_EQ(program.close(), 0U);
    expectNothingLost();
    EXPECT_EQ(filesInFolder(), files_);
}

/// What the user has done, and when it was complete.
struct Deed {
    std::chrono::steady_clock::time_point done;
    double place;
};

/// Moves a tool now and then until `end`. Returns all deeds, and the longest that one took: the
/// machine may be busy.
std::pair<std::vector<Deed>, milliseconds> work(const DesktopWindow& move, double from,
                                                std::mt19937& random,
                                                std::chrono::steady_clock::time_point end) {
    using Clock = std::chrono::steady_clock;
    std::vector<Deed> deeds;
    milliseconds longest{0};
    while (Clock::now() < end) {
        const auto begun = Clock::now();
        move.send(BM_CLICK);
        deeds.push_back({Clock::now(), ++from});
        longest = std::max(longest, std::chrono::duration_cast<milliseconds>(Clock::now() - begun));
        constexpr unsigned longestRest = 700;
        pause(std::min(milliseconds(random() % longestRest),
                       std::chrono::duration_cast<milliseconds>(end - Clock::now())));
    }
    return {deeds, longest};
}

TEST_F(KilledProgram, LosesThreeSecondsOfADayAtMost) {
    using Clock = std::chrono::steady_clock;
    std::mt19937 random(seed());
    const int kills = numberOr("ORMALA_DAY_KILLS", usualDayKills);
    milliseconds mostLost{0};
    for (int kill = 1; kill <= kills && !HasFailure(); ++kill) {
        SCOPED_TRACE("kill " + std::to_string(kill));
        const Program program(data_);
        waitForLoad(program);
        const auto end = Clock::now() + milliseconds(random() % 6000);
        const auto [deeds, longest] = work(firstMove(program), saved_, random, end);
        endByForce(program);
        const auto killed = Clock::now();
        expectNothingLost();
        for (const Deed& deed : deeds) {
            const auto age = std::chrono::duration_cast<milliseconds>(killed - deed.done);
            if (deed.place > saved_) {
                mostLost = std::max(mostLost, age);
                EXPECT_LE(age, milliseconds(3000) + 2 * longest) << "older than three seconds";
            }
        }
    }
    std::printf("%d kills of a working day lost %d ms at most\n", kills,
                static_cast<int>(mostLost.count()));
}

}  // namespace
}  // namespace ormala::test
