#include "e2e/support/StageService.h"

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "e2e/support/StageFailure.h"

namespace ormala::test {

namespace {

std::filesystem::path folderOf(const wchar_t* variable) {
    const wchar_t* name = _wgetenv(variable);
    return name == nullptr ? L"" : name;
}

void write(const std::filesystem::path& path, const std::string& text) {
    // Under its own name only when it is whole.
    const std::filesystem::path draft = path.wstring() + L".new";
    std::ofstream(draft, std::ios::binary) << text;
    // While the stage looks for it, Wine may not find where to put it.
    requireSoon("request to the stage", [&] {
        std::error_code error;
        std::filesystem::rename(draft, path, error);
        return !error || !std::filesystem::exists(draft);
    });
}

/// It is there only when it is whole.
std::string takeAnswer(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::string text(std::istreambuf_iterator<char>(file), {});
    file.close();
    std::filesystem::remove(path);
    return text;
}

}  // namespace

StageService::StageService(const wchar_t* variable) : folder_(folderOf(variable)) {}

std::string StageService::ask(const std::string& wanted) const {
    const auto answer = folder_ / "answer";
    write(folder_ / "request", wanted);
    requireSoon("answer of the stage", [&] { return std::filesystem::exists(answer); });
    return takeAnswer(answer);
}

void StageService::request(const std::string& wanted) const {
    const std::string text = ask(wanted);
    if (text != "done") {
        failStage("the stage does not do \"" + wanted + "\": " + text);
    }
}

}  // namespace ormala::test
