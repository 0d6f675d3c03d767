// The whole program of tests as on a lesser processor: OMBRELIA_TEST_VECTORS=narrow.
#include "lesser_processor.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace ombrelia {

namespace {

class VectorsOfRun : public testing::Environment {
  public:
    void SetUp() override {
        const char* name = std::getenv("OMBRELIA_TEST_VECTORS");
        if (name == nullptr) {
            return;
        }
        ASSERT_EQ(std::string(name), "narrow");
        processor_.emplace(Vectors::Narrow);
    }
    void TearDown() override { processor_.reset(); }

  private:
    std::optional<LesserProcessor> processor_;
};

const auto* const vectorsOfRun = testing::AddGlobalTestEnvironment(new VectorsOfRun);

}  // namespace

TEST(Vectors, are_those_that_the_run_asks_for) {
    const bool areNarrow = std::getenv("OMBRELIA_TEST_VECTORS") != nullptr;
    EXPECT_EQ(usedVectors, areNarrow ? Vectors::Narrow : ownVectors());
}

}  // namespace ombrelia
