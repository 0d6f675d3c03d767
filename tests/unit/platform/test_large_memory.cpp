#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

#include "platform/large_memory.h"

namespace ombrelia {

TEST(LargeMemory, large_pages_keep_what_is_in_the_memory) {
    for (const std::size_t words : {std::size_t{0}, std::size_t{1000}, std::size_t{3} << 20U}) {
        std::vector<std::uint32_t> memory(words + 1);
        for (std::size_t n = 0; n < words; ++n) {
            memory[n] = static_cast<std::uint32_t>(n * 2654435761U);
        }
        preferLargePages(memory.data() + 1, words * sizeof(std::uint32_t));
        std::size_t wrong = 0;
        for (std::size_t n = 0; n < words; ++n) {
            wrong += memory[n] != static_cast<std::uint32_t>(n * 2654435761U) ? 1U : 0U;
        }
        EXPECT_EQ(wrong, 0U) << words;
    }
}

}  // namespace ombrelia
