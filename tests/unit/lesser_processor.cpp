// The whole program of tests as on a lesser processor: OMBRELIA_TEST_VECTORS=narrow or wide.
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
        ASSERT_TRUE(std::string(name) == "narrow" || std::string(name) == "wide") << name;
        processor_.emplace(std::string(name) == "narrow" ? Vectors::Narrow : Vectors::Avx2);
    }
    void TearDown() override { processor_.reset(); }

  private:
    std::optional<LesserProcessor> processor_;
};

const auto* const vectorsOfRun = testing::AddGlobalTestEnvironment(new VectorsOfRun);

}  // namespace

TEST(Vectors, are_those_that_the_run_asks_for) {
    const char* name = std::getenv("OMBRELIA_TEST_VECTORS");
    if (name == nullptr) {
        EXPECT_EQ(usedVectors, ownVectors());
    } else {
        EXPECT_LE(usedVectors, std::string(name) == "narrow" ? Vectors::Narrow : Vectors::Avx2);
    }
}

}  // namespace ombrelia
