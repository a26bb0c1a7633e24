#include "Foundation/Singleton.h"

#include <gtest/gtest.h>

#include <optional>

namespace
{
/** Keeps the wavetables between tests, which would be built anew for each processor otherwise. */
class KeepSingletons : public testing::Environment
{
public:
    void SetUp() override { token.emplace(); }
    void TearDown() override { token.reset(); }

private:
    std::optional<Zn::Singleton::UserToken> token;
};

[[maybe_unused]] const auto* const keptForAllTests = testing::AddGlobalTestEnvironment (new KeepSingletons);
} // namespace
