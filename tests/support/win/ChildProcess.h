#pragma once

#include <windows.h>

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "support/win/Wait.h"

namespace ormala::test {

struct CloseKernelHandle {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using KernelHandle = std::unique_ptr<std::remove_pointer_t<HANDLE>, CloseKernelHandle>;

/// A program that this one has started, in the folder of its own file. It ends with its object at
/// the latest, and with this process however that ends.
class ChildProcess {
  public:
    /// Throws std::runtime_error if the program cannot be started. `arguments` hold no quotes.
    explicit ChildProcess(const std::filesystem::path& program,
                          const std::vector<std::wstring>& arguments = {});
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    DWORD id() const { return id_; }
    bool isRunning() const;
    /// The exit code, or none if the program still runs at the deadline.
    std::optional<DWORD> waitForExit(milliseconds deadline = usualDeadline) const;
    void kill();

    /// Bytes of memory that the process shares with no other.
    std::size_t privateBytes() const;
    /// Kernel and user time together.
    milliseconds processorTime() const;

  private:
    KernelHandle job_;
    KernelHandle process_;
    DWORD id_ = 0;
};

}  // namespace ormala::test
