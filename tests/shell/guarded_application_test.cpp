#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "shell/guarded_application.h"

namespace quillane {
namespace {

TEST(GuardedApplication, AnExceptionBecomesAMessageAndTheEventCountsAsHandled) {
    std::string shown;
    const bool handled = DeliverGuarded([]() -> bool { throw std::runtime_error("Overflow"); },
                                        [&](const std::string& what) { shown = what; });
    EXPECT_TRUE(handled);
    EXPECT_EQ(shown, "Overflow");
    EXPECT_EQ(UnexpectedErrorText(shown),
              "The command could not be completed:\nOverflow\n\nThe program goes on; your work is kept.");
}

TEST(GuardedApplication, AnEventWithoutAnExceptionKeepsItsOwnAnswer) {
    bool called = false;
    EXPECT_FALSE(DeliverGuarded([] { return false; }, [&](const std::string&) { called = true; }));
    EXPECT_TRUE(DeliverGuarded([] { return true; }, [&](const std::string&) { called = true; }));
    EXPECT_FALSE(called);
}

}  // namespace
}  // namespace quillane
