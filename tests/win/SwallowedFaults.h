#pragma once

#include <gtest/gtest.h>

namespace ormala::test {

/// Fails each test in which the program reads or writes where nothing is. The system may swallow
/// such a fault where it has called a window's procedure, and nobody would see it.
class SwallowedFaults : public testing::EmptyTestEventListener {
  public:
    SwallowedFaults();

  private:
    void OnTestStart(const testing::TestInfo& test) override;
    void OnTestEnd(const testing::TestInfo& test) override;
};

}  // namespace ormala::test
