// What the tests stand on: a process as at its start, on a platform without a screen.
#pragma once

#include <cstdint>
#include <gtest/gtest.h>

#include "platform/headless/headless_platform.h"

namespace ombrelia {

// Every test begins with a fresh process; nothing is loaded.
class ProcessTest : public testing::Test {
  protected:
    ProcessTest();
    ~ProcessTest() override;

    HeadlessPlatform platform;
};

// Every test begins with the editor open over a flat map of 65 points.
class EditorTest : public ProcessTest {
  protected:
    EditorTest() { openEditor(65); }

    // A fresh process with the editor open; the settings stay.
    void openEditor(int mapSize);
};

// The uniform floats x(k + 1) = x(k) * 1664525 + 1013904223, written apart from the platform's.
class PlainDraws {
  public:
    explicit PlainDraws(std::uint32_t seed) : x_(seed) {}

    float operator()() {
        x_ = (x_ * std::uint64_t{1664525} + 1013904223) % (std::uint64_t{1} << 32U);
        return static_cast<float>(static_cast<double>(x_ / 256) / 16777216.0);
    }

  private:
    std::uint64_t x_;
};

}  // namespace ombrelia
