#include "support/win/Golden.h"

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <sstream>

#include "support/win/PngFile.h"

namespace ormala::test {

namespace {

std::filesystem::path goldenFile(const std::string& name) {
    return std::filesystem::path(ORMALA_SOURCE_DIR) / "tests" / "golden" / (name + ".png");
}

}  // namespace

std::string pictureComplaint(const Picture& picture, const Picture& golden,
                             const GoldenTolerance& tolerance) {
    std::ostringstream complaint;
    const ScreenRect& rect = picture.rect();
    if (rect.width() != golden.rect().width() || rect.height() != golden.rect().height()) {
        complaint << rect.width() << " x " << rect.height() << " pixels instead of "
                  << golden.rect().width() << " x " << golden.rect().height();
        return complaint.str();
    }
    const Difference found = difference(golden, picture, tolerance.channel);
    const double pixels = static_cast<double>(rect.width()) * rect.height();
    if (static_cast<double>(found.places.size()) > tolerance.share * pixels) {
        complaint << found;
    }
    return complaint.str();
}

std::string goldenComplaint(const Picture& picture, const std::string& name,
                            const GoldenTolerance& tolerance) {
    const std::filesystem::path file = goldenFile(name);
    if (std::getenv("ORMALA_UPDATE_GOLDEN") != nullptr) {
        std::filesystem::create_directories(file.parent_path());
        savePng(picture, file);
        return "";
    }
    std::string complaint;
    try {
        complaint = pictureComplaint(picture, loadPng(file), tolerance);
    } catch (const std::exception& failure) {
        complaint = failure.what();
    }
    if (!complaint.empty()) {
        const auto seen = std::filesystem::temp_directory_path() / (name + ".png");
        savePng(picture, seen);
        complaint += "; what was seen is in " + seen.string();
    }
    return complaint;
}

}  // namespace ormala::test
