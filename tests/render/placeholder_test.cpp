#include <gtest/gtest.h>

namespace quillane {
int renderLayerVersion();
namespace {
TEST(RenderLayer, Links) { EXPECT_EQ(renderLayerVersion(), 1); }
}  // namespace
}  // namespace quillane
