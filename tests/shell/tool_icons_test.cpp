#include <QImage>
#include <QPixmap>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "shell/design_tool_icons.h"
#include "shell/frame_toolbar.h"
#include "shell/icon_painting.h"

namespace quillane::testing {
namespace {

// The pixels a picture inks, as a mask.
std::vector<bool> ink(const QIcon& icon) {
    const QImage image =
        icon.pixmap(ToolIconSide, ToolIconSide).toImage().convertToFormat(QImage::Format_ARGB32);
    std::vector<bool> mask;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) mask.push_back(qAlpha(image.pixel(x, y)) > 96);
    return mask;
}

// Pixels of about this colour.
int pixelsOf(const QIcon& icon, QColor colour) {
    const QImage image =
        icon.pixmap(ToolIconSide, ToolIconSide).toImage().convertToFormat(QImage::Format_ARGB32);
    int n = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb c = image.pixel(x, y);
            if (qAlpha(c) > 200 && std::abs(qRed(c) - colour.red()) < 30 &&
                std::abs(qGreen(c) - colour.green()) < 30 && std::abs(qBlue(c) - colour.blue()) < 30)
                ++n;
        }
    return n;
}

const std::vector<std::string> DesignKeys = {"new",   "duplicate",    "delete", "horizontal", "vertical",
                                             "rotate left", "rotate right", "polygon", "axes",   "fixed points",
                                             "grid", "lines",        "zoom out", "zoom in", "help"};

TEST(ToolIcons, EveryDesignButtonHasAPictureOfItsOwn) {
    std::vector<QImage> images;
    for (const std::string& key : DesignKeys) {
        images.push_back(DesignToolIcon(key).pixmap(ToolIconSide, ToolIconSide).toImage());
        int inked = 0;
        for (bool b : ink(DesignToolIcon(key))) inked += b;
        EXPECT_GT(inked, 20) << key;
    }
    for (size_t i = 0; i < images.size(); ++i)
        for (size_t j = i + 1; j < images.size(); ++j)
            EXPECT_NE(images[i], images[j]) << DesignKeys[i] << " / " << DesignKeys[j];
}

// The turning buttons show the map itself, grey before the turn and blue after, which neither Undo
// nor Redo has: a bare curved arrow reads as Undo.
TEST(ToolIcons, TheTurningButtonsShowTheMapTurningAndUndoDoesNot) {
    const QColor ghost(140, 140, 140), map(30, 110, 200);
    for (const char* turn : {"rotate left", "rotate right"}) {
        EXPECT_GT(pixelsOf(DesignToolIcon(turn), ghost), 15) << turn;
        EXPECT_GT(pixelsOf(DesignToolIcon(turn), map), 15) << turn;
    }
    for (const char* back : {"undo", "redo"}) {
        EXPECT_EQ(pixelsOf(ToolbarIcon(back), ghost), 0) << back;
        EXPECT_LT(pixelsOf(ToolbarIcon(back), map), 3) << back;
    }
    // Left and right are mirror pictures, not the same one.
    EXPECT_NE(DesignToolIcon("rotate left").pixmap(ToolIconSide).toImage(),
              DesignToolIcon("rotate right").pixmap(ToolIconSide).toImage());
}

}  // namespace
}  // namespace quillane::testing
