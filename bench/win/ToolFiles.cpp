#include <windows.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "Figures.h"
#include "app/ToolFile.h"
#include "benchmarks.h"
#include "storage/win/FileHandle.h"
#include "storage/win/LongPath.h"
#include "storage/win/WindowsCodePage.h"
#include "storage/win/WindowsFileStore.h"
#include "support/QuietToolList.h"
#include "support/win/TemporaryFolder.h"
#include "support/win/WideText.h"

namespace ormala::bench {

namespace {

constexpr int fileTools = 33;
constexpr int fileRuns = 200;

void require(bool done) {
    if (!done) {
        throw std::runtime_error("a file of the benchmark could not be used");
    }
}

/// The least that reads a file whole.
void readAtOnce(const std::wstring& path, std::string& bytes) {
    const FileHandle file = openFile(path, GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING);
    LARGE_INTEGER size{};
    require(file && GetFileSizeEx(file.get(), &size) != 0);
    bytes.resize(static_cast<std::size_t>(size.QuadPart));
    DWORD count = 0;
    require(ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr) !=
            0);
}

/// The least that writes a file so that it is always the old one or the new one: a new file,
/// written at once, flushed to the disk and renamed over the old one.
void writeCarefully(const std::wstring& path, const std::string& bytes) {
    const std::wstring fresh = path + L".new";
    FileHandle file = openFile(fresh, GENERIC_WRITE, 0, CREATE_NEW);
    DWORD count = 0;
    require(file && WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count,
                              nullptr) != 0);
    require(FlushFileBuffers(file.get()) != 0);
    file.reset();
    require(MoveFileExW(fresh.c_str(), path.c_str(),
                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0);
}

/// A set of tools with a file of its own on the disk, and a second file for the plain operations.
class ToolSet {
  public:
    explicit ToolSet(ToolKind kind)
        : path_(test::narrow((folder_.path() / "tools.OM").wstring())),
          plainPath_(longPath(path_ + ".plain")) {
        file_.setPath(path_);
        tools_.list.RemoveAllTools();
        tools_.add(kind, fileTools);
        require(toolFile_.save());
        bytes_ = store_.read(path_).bytes;
        writeCarefully(plainPath_, bytes_);
    }

    void save() { toolFile_.save(); }
    void load() {
        toolFile_.load();
        require(tools_.list.GetPanelsInVisualOrder().size() == fileTools);
    }
    void writePlainly() { writeCarefully(plainPath_, bytes_); }
    void readPlainly() { readAtOnce(plainPath_, bytes_); }

  private:
    const test::TemporaryFolder folder_;
    const std::string path_;
    const std::wstring plainPath_;
    WindowsFileStore store_;
    const WindowsCodePage codePage_;
    MemoryMessagePresenter messages_;
    INIFile file_{store_, codePage_, messages_};
    QuietToolList tools_;
    ToolFile toolFile_{{file_, store_, tools_.list, tools_.view},
                       {"1.0.0", [] { return std::string("2024-05-17 08:30:12"); }}};
    std::string bytes_;
};

void measureFiles(ToolKind kind, const std::string& what) {
    ToolSet set(kind);
    std::vector<double> saves;
    std::vector<double> writes;
    std::vector<double> loads;
    std::vector<double> reads;
    for (int i = 0; i < fileRuns; ++i) {
        saves.push_back(elapsed([&] { set.save(); }));
        writes.push_back(elapsed([&] { set.writePlainly(); }));
        loads.push_back(elapsed([&] { set.load(); }));
        reads.push_back(elapsed([&] { set.readPlainly(); }));
    }
    constexpr double mostWrites = 5;
    constexpr double mostReads = 10;
    report("save of 33 " + what, median(saves), "ms",
           {median(writes), "a new file, written at once, flushed and renamed", mostWrites});
    report("load of 33 " + what, median(loads), "ms",
           {median(reads), "reading the bytes at once", mostReads});
}

}  // namespace

void toolFiles() {
    measureFiles(ToolKind::stencil, "stencils");
    measureFiles(ToolKind::measurement, "measuring tools");
}

}  // namespace ormala::bench
