#include "support/win/ChildProcess.h"

#include <windows.h>
// Needs what windows.h declares.
#include <psapi.h>

#include <cstdint>
#include <stdexcept>

#include "support/win/WideText.h"

namespace ormala::test {

namespace {

std::wstring commandLine(const std::filesystem::path& program,
                         const std::vector<std::wstring>& arguments) {
    std::wstring line = L'"' + program.wstring() + L'"';
    for (const auto& argument : arguments) {
        line += L" \"" + argument + L'"';
    }
    return line;
}

KernelHandle jobThatEndsWithItsHandle() {
    KernelHandle job(CreateJobObjectW(nullptr, nullptr));
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation, &limits, sizeof(limits));
    return job;
}

std::int64_t ticks(const FILETIME& time) {
    return (std::int64_t{time.dwHighDateTime} << 32) | std::int64_t{time.dwLowDateTime};
}

/// A busy Wine refuses a start now and then with an internal error, which tells nothing of the
/// program.
PROCESS_INFORMATION startSuspended(const std::filesystem::path& program, std::wstring line) {
    constexpr int tries = 5;
    constexpr milliseconds between{200};
    const std::wstring folder = program.parent_path().wstring();
    STARTUPINFOW start{};
    start.cb = sizeof(start);
    PROCESS_INFORMATION started{};
    for (int i = 0; i < tries; ++i) {
        if (CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, CREATE_SUSPENDED,
                           nullptr, folder.empty() ? nullptr : folder.c_str(), &start,
                           &started) != 0) {
            return started;
        }
        if (GetLastError() != ERROR_INTERNAL_ERROR) {
            break;
        }
        pause(between);
        SetLastError(ERROR_INTERNAL_ERROR);
    }
    throw std::runtime_error("cannot start " + narrow(program.wstring()) + ", error " +
                             std::to_string(GetLastError()));
}

}  // namespace

ChildProcess::ChildProcess(const std::filesystem::path& program,
                           const std::vector<std::wstring>& arguments)
    : job_(jobThatEndsWithItsHandle()) {
    const PROCESS_INFORMATION started = startSuspended(program, commandLine(program, arguments));
    process_.reset(started.hProcess);
    id_ = started.dwProcessId;
    const KernelHandle thread(started.hThread);
    AssignProcessToJobObject(job_.get(), process_.get());
    ResumeThread(thread.get());
}

ChildProcess::~ChildProcess() {
    kill();
}

bool ChildProcess::isRunning() const {
    return WaitForSingleObject(process_.get(), 0) == WAIT_TIMEOUT;
}

std::optional<DWORD> ChildProcess::waitForExit(milliseconds deadline) const {
    DWORD code = 0;
    if (!waitUntil([this] { return !isRunning(); }, deadline) ||
        GetExitCodeProcess(process_.get(), &code) == 0) {
        return std::nullopt;
    }
    return code;
}

void ChildProcess::kill() {
    if (isRunning()) {
        TerminateProcess(process_.get(), 1);
        WaitForSingleObject(process_.get(), static_cast<DWORD>(usualDeadline.count()));
    }
}

std::size_t ChildProcess::privateBytes() const {
    PROCESS_MEMORY_COUNTERS counters{};
    counters.cb = sizeof(counters);
    if (GetProcessMemoryInfo(process_.get(), &counters, sizeof(counters)) == 0) {
        throw std::runtime_error("the memory of the process cannot be asked for");
    }
    // The same figure as PrivateUsage of the longer record, which Wine leaves empty.
    return counters.PagefileUsage;
}

milliseconds ChildProcess::processorTime() const {
    FILETIME created{};
    FILETIME ended{};
    FILETIME kernel{};
    FILETIME user{};
    if (GetProcessTimes(process_.get(), &created, &ended, &kernel, &user) == 0) {
        throw std::runtime_error("the times of the process cannot be asked for");
    }
    constexpr std::int64_t ticksPerMillisecond = 10000;
    return milliseconds((ticks(kernel) + ticks(user)) / ticksPerMillisecond);
}

}  // namespace ormala::test
