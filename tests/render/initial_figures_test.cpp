#include "render/initial_figures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "core/menu_state.h"
#include "core/scripted_host.h"

namespace quillane {
namespace {

constexpr Color Red = RGB(255, 0, 0);
constexpr Color Blue = RGB(0, 0, 255);

// 200 pixels over -1 .. 3 in both directions, y upward: 50 pixels to a unit.
RasterSurface canvas() {
    RasterSurface s(200, 200, White);
    s.setScale(-1, 3, 3, -1);
    return s;
}

size_t countOf(const RasterSurface& s, Color c) {
    return static_cast<size_t>(std::count_if(s.data(), s.data() + static_cast<size_t>(s.width()) * s.height(),
                                             [c](uint32_t p) { return (p & 0xFFFFFFu) == c; }));
}

bool samePixels(const RasterSurface& a, const RasterSurface& b) {
    return std::equal(a.data(), a.data() + static_cast<size_t>(a.width()) * a.height(), b.data());
}

// No pixel of colour c within one pixel of (x, y).
bool clearAround(const RasterSurface& s, double x, double y, Color c) {
    int64_t col = 0, row = 0;
    if (!s.toPixel(x, y, col, row)) return false;
    for (int64_t r = row - 1; r <= row + 1; ++r)
        for (int64_t k = col - 1; k <= col + 1; ++k)
            if (s.inside(k, r) && s.pixel(static_cast<int>(k), static_cast<int>(r)) == c) return false;
    return true;
}

void expectWindow(const WorldWindow& w, float xmin, float xmax, float ymin, float ymax) {
    EXPECT_NEAR(w.xmin, xmin, 1e-5);
    EXPECT_NEAR(w.xmax, xmax, 1e-5);
    EXPECT_NEAR(w.ymin, ymin, 1e-5);
    EXPECT_NEAR(w.ymax, ymax, 1e-5);
}

// ---- frmLine

LineDialogText lineText(const char* x1, const char* y1, const char* x2, const char* y2) {
    LineDialogText t;
    t.txtX1 = x1, t.txtY1 = y1, t.txtX2 = x2, t.txtY2 = y2;
    t.cmbWidth = 3;
    t.color = Red;
    return t;
}

TEST(LineDialog, EachBoxHasItsOwnMessage) {
    EXPECT_EQ(CheckLineDialog(lineText("1+", "0", "1", "1")).message, "Cannot evaluate expression for X1  ");
    EXPECT_EQ(CheckLineDialog(lineText("0", "q", "1", "1")).message, "Cannot evaluate expression for Y1  ");
    EXPECT_EQ(CheckLineDialog(lineText("0", "0", "(1", "1")).message, "Cannot evaluate expression for X2 ");
    EXPECT_EQ(CheckLineDialog(lineText("0", "0", "1", "")).message, "Cannot evaluate expression for Y2 ");
    EXPECT_EQ(CheckLineDialog(lineText("1/2", "0", "0.5", "0")).message, "Both points are the same  ");
}

TEST(LineDialog, TakesExpressionsWidthAndColour) {
    const Checked<LineFigure> v = CheckLineDialog(lineText("sqrt(4)/2", "-1", "2*3", "pi"));
    ASSERT_TRUE(v.value);
    EXPECT_TRUE(v.message.empty());
    EXPECT_FLOAT_EQ(v.value->x1, 1.0f);
    EXPECT_FLOAT_EQ(v.value->y1, -1.0f);
    EXPECT_FLOAT_EQ(v.value->x2, 6.0f);
    EXPECT_NEAR(v.value->y2, 3.14159265f, 1e-6);
    EXPECT_EQ(v.value->penWidth, 3);
    EXPECT_EQ(v.value->color, Red);
}

TEST(LineDialog, AFailureShowsTheErrorBoxAndKeepsTheDialogOpen) {
    ScriptedHost host;
    EXPECT_FALSE(AcceptChecked(host, CheckLineDialog(lineText("0", "0", "0", "0"))));
    EXPECT_EQ(host.shown(), (std::vector<ShownMessage>{{"Error", "Both points are the same  "}}));
    EXPECT_TRUE(AcceptChecked(host, CheckLineDialog(lineText("0", "0", "1", "0"))));
    EXPECT_EQ(host.shown().size(), 1u);
}

TEST(LineFigureFit, SmallerCoordinatePlusLengthWidenedByThePen) {
    LineFigure f;
    f.x1 = 2, f.y1 = 0, f.x2 = -1, f.y2 = 1;
    expectWindow(FigureFitWindow(f, {}, 0.1f), -1.1f, 2.1f, -0.1f, 1.1f);
}

TEST(LineFigureDrawing, SetsThePixelsOfTheSegmentOnly) {
    RasterSurface s = canvas();
    LineFigure f;
    f.x1 = 0, f.y1 = 1, f.x2 = 2, f.y2 = 1;
    f.color = Red;
    DrawLineFigure(s, f);
    EXPECT_EQ(s.point(1, 1), Red);
    EXPECT_EQ(s.point(0.02, 1), Red);
    EXPECT_EQ(s.point(1, 1.2), White);
    EXPECT_EQ(s.point(2.3, 1), White);
    EXPECT_EQ(countOf(s, Red), 101u);
}

TEST(LineFigureDrawing, WidthWidensAndThePenIsLeftAsItWas) {
    RasterSurface s = canvas();
    s.setDrawWidth(2);
    LineFigure f;
    f.x1 = 0, f.y1 = 1, f.x2 = 2, f.y2 = 1;
    f.penWidth = 9;
    f.color = Red;
    DrawLineFigure(s, f);
    EXPECT_EQ(s.point(1, 1.06), Red);
    EXPECT_EQ(s.drawWidth(), 2);
}

// ---- frmTriangle

TriangleDialogText triangleText(TriangleShape shape, const char* x, const char* y, const char* w,
                                const char* h) {
    TriangleDialogText t;
    t.shape = shape;
    t.txtX = x, t.txtY = y, t.txtWidth = w, t.txtHeight = h;
    t.fillColor = Blue;
    t.lineColor = Red;
    return t;
}

TEST(TriangleDialog, EachBoxHasItsOwnMessage) {
    const auto R = TriangleShape::Right;
    EXPECT_EQ(CheckTriangleDialog(triangleText(R, "x", "0", "1", "1")).message,
              "Cannot evaluate expression for x.  ");
    EXPECT_EQ(CheckTriangleDialog(triangleText(R, "0", "*", "1", "1")).message,
              "Cannot evaluate expression for y.  ");
    EXPECT_EQ(CheckTriangleDialog(triangleText(R, "0", "0", "1/", "1")).message,
              "Cannot evaluate expression for width.  ");
    EXPECT_EQ(CheckTriangleDialog(triangleText(R, "0", "0", "1", "h")).message,
              "Cannot evaluate expression for height.  ");
    EXPECT_EQ(CheckTriangleDialog(triangleText(R, "0", "0", "0", "1")).message, "Width must be positive.  ");
    EXPECT_EQ(CheckTriangleDialog(triangleText(R, "0", "0", "1", "-2")).message,
              "Height must be positive.  ");
}

TEST(TriangleDialog, EquilateralIgnoresTheHeightBox) {
    const auto v = CheckTriangleDialog(triangleText(TriangleShape::Equilateral, "0", "0", "2", "nonsense"));
    ASSERT_TRUE(v.value);
    EXPECT_NEAR(v.value->height, 1.7320508f, 1e-6);
}

TEST(TriangleDialog, GeneralReadsSixCoordinates) {
    TriangleDialogText t = triangleText(TriangleShape::General, "bad", "bad", "bad", "bad");
    const char* points[6] = {"0", "0", "2", "0", "1", "2"};
    for (int k = 0; k < 6; ++k) t.txtPoints[k] = points[k];
    const auto v = CheckTriangleDialog(t);
    ASSERT_TRUE(v.value);
    EXPECT_FLOAT_EQ(v.value->px[2], 1.0f);
    EXPECT_FLOAT_EQ(v.value->py[2], 2.0f);
    t.txtPoints[3] = "2+";
    EXPECT_EQ(CheckTriangleDialog(t).message, "Cannot evaluate one of the coordinates.   ");
}

TEST(TriangleFigureFit, GeneralUsesItsCornersAndOthersTheirBox) {
    TriangleFigure g;
    g.shape = TriangleShape::General;
    g.px[0] = 1, g.py[0] = -1, g.px[1] = 3, g.py[1] = 0, g.px[2] = 0, g.py[2] = 2;
    expectWindow(FigureFitWindow(g, {}, 0.25f), -0.25f, 3.25f, -1.25f, 2.25f);
    TriangleFigure r;
    r.shape = TriangleShape::Right;
    r.x = 1, r.y = 2, r.width = 3, r.height = 0.5f;
    expectWindow(FigureFitWindow(r, {}, 0.1f), 0.9f, 4.1f, 1.9f, 2.6f);
}

TEST(TriangleFigureDrawing, FilledRightTriangleHasItsFillInsideAndNothingBeyondTheHypotenuse) {
    RasterSurface s = canvas();
    const auto v = CheckTriangleDialog(triangleText(TriangleShape::Right, "0", "0", "2", "2"));
    ASSERT_TRUE(v.value);
    DrawTriangleFigure(s, *v.value);
    EXPECT_EQ(s.point(0.5, 0.5), Blue);
    EXPECT_EQ(s.point(0, 1), Red);  // the outline on a leg
    EXPECT_EQ(s.point(1.5, 1.5), White);
    EXPECT_EQ(s.point(-0.5, 0.5), White);
}

TEST(TriangleFigureDrawing, OutlineLeavesTheMiddleClear) {
    RasterSurface s = canvas();
    TriangleDialogText t = triangleText(TriangleShape::Equilateral, "0", "0", "2", "");
    t.filled = false;
    DrawTriangleFigure(s, *CheckTriangleDialog(t).value);
    EXPECT_EQ(s.point(1, 0), Red);
    EXPECT_EQ(s.point(1, 0.6), White);
    EXPECT_EQ(countOf(s, Blue), 0u);
}

// ---- frmRectangle

RectangleDialogText rectangleText(const char* x, const char* y, const char* w, const char* h) {
    RectangleDialogText t;
    t.txtX = x, t.txtY = y, t.txtWidth = w, t.txtHeight = h;
    t.color = Red;
    return t;
}

TEST(RectangleDialog, UsesTheSameTextsAsTheTriangle) {
    EXPECT_EQ(CheckRectangleDialog(rectangleText("?", "0", "1", "1")).message,
              "Cannot evaluate expression for x.  ");
    EXPECT_EQ(CheckRectangleDialog(rectangleText("0", "?", "1", "1")).message,
              "Cannot evaluate expression for y.  ");
    EXPECT_EQ(CheckRectangleDialog(rectangleText("0", "0", "?", "1")).message,
              "Cannot evaluate expression for width.  ");
    EXPECT_EQ(CheckRectangleDialog(rectangleText("0", "0", "1", "?")).message,
              "Cannot evaluate expression for height.  ");
    EXPECT_EQ(CheckRectangleDialog(rectangleText("0", "0", "-1", "1")).message, "Width must be positive.  ");
    EXPECT_EQ(CheckRectangleDialog(rectangleText("0", "0", "1", "0")).message, "Height must be positive.  ");
}

TEST(RectangleDialog, SquareTakesItsHeightFromItsWidth) {
    RectangleDialogText t = rectangleText("0", "0", "1.5", "?");
    t.optsquare = true;
    const auto v = CheckRectangleDialog(t);
    ASSERT_TRUE(v.value);
    EXPECT_FLOAT_EQ(v.value->height, 1.5f);
    expectWindow(FigureFitWindow(*v.value, {}, 0.5f), -0.5f, 2.0f, -0.5f, 2.0f);
}

TEST(RectangleFigureDrawing, FilledIsABoxAndOutlineIsFourLines) {
    RasterSurface filled = canvas(), outline = canvas();
    RectangleFigure f;
    f.x = 0, f.y = 0, f.width = 2, f.height = 1;
    f.color = Red;
    DrawRectangleFigure(filled, f);
    EXPECT_EQ(filled.point(1, 0.5), Red);
    EXPECT_EQ(filled.point(2.2, 0.5), White);
    EXPECT_EQ(filled.point(1, 1.2), White);
    f.filled = false;
    DrawRectangleFigure(outline, f);
    EXPECT_EQ(outline.point(1, 0.5), White);
    EXPECT_EQ(outline.point(1, 0), Red);
    EXPECT_EQ(outline.point(0, 0.5), Red);
    EXPECT_EQ(outline.point(2, 0.5), Red);
    EXPECT_EQ(outline.point(1, 1), Red);
}

// ---- frmPolygon

TEST(PolygonDialog, SameTextsAndWidthMustBePositive) {
    PolygonDialogText t;
    t.txtX = "0", t.txtY = "0", t.txtWidth = "1";
    t.txtX = "1..2";
    EXPECT_EQ(CheckPolygonDialog(t).message, "Cannot evaluate expression for x.  ");
    t.txtX = "0", t.txtY = "";
    EXPECT_EQ(CheckPolygonDialog(t).message, "Cannot evaluate expression for y.  ");
    t.txtY = "0", t.txtWidth = "w";
    EXPECT_EQ(CheckPolygonDialog(t).message, "Cannot evaluate expression for width.  ");
    t.txtWidth = "-0.5";
    EXPECT_EQ(CheckPolygonDialog(t).message, "Width must be positive.  ");
    t.txtWidth = "2";
    t.sides = 6;
    ASSERT_TRUE(CheckPolygonDialog(t).value);
    EXPECT_EQ(CheckPolygonDialog(t).value->sides, 6);
}

TEST(RegularPolygonFigure, HexagonFitsItsWidthFromItsCorner) {
    RegularPolygonFigure f;
    f.sides = 6, f.x = 0.5f, f.y = 0, f.width = 2;
    const DesignPolygon p = RegularPolygonVertices(f);
    ASSERT_EQ(p.nPoints, 7);
    expectWindow(FigureFitWindow(f, {}, 0), 0.5f, 2.5f, 0, 1.7320508f);
    EXPECT_FLOAT_EQ(p.x[1], p.x[7]);
    EXPECT_FLOAT_EQ(p.y[1], p.y[7]);
}

TEST(RegularPolygonFigure, FilledCoversTheMiddleOutlineDoesNot) {
    RegularPolygonFigure f;
    f.sides = 6, f.x = 0, f.y = 0, f.width = 2, f.color = Red;
    RasterSurface s = canvas();
    DrawRegularPolygonFigure(s, f);
    EXPECT_EQ(s.point(1, 0.85), Red);
    EXPECT_EQ(s.point(0.05, 0.05), White);  // a cut corner of the bounding box
    EXPECT_EQ(s.point(2.3, 0.85), White);
    f.filled = false;
    RasterSurface o = canvas();
    DrawRegularPolygonFigure(o, f);
    EXPECT_EQ(o.point(1, 0.85), White);
    EXPECT_EQ(o.point(0, 0.87), Red);  // the leftmost corner
}

// ---- frmCircle

TEST(CircleDialog, ItsOwnTextsWithoutStops) {
    CircleDialogText t;
    t.txtX = "a", t.txtY = "0", t.txtRadius = "1";
    EXPECT_EQ(CheckCircleDialog(t).message, "Cannot evaluate expression for x");
    t.txtX = "0", t.txtY = "b";
    EXPECT_EQ(CheckCircleDialog(t).message, "Cannot evaluate expression for y");
    t.txtY = "0", t.txtRadius = "c";
    EXPECT_EQ(CheckCircleDialog(t).message, "Cannot evaluate expression for radius");
    t.txtRadius = "0";
    EXPECT_EQ(CheckCircleDialog(t).message, "Radius must be positive  ");
    t.txtRadius = "1/4";
    ASSERT_TRUE(CheckCircleDialog(t).value);
    EXPECT_FLOAT_EQ(CheckCircleDialog(t).value->radius, 0.25f);
}

TEST(CircleFigure, FitAndPixels) {
    CircleFigure f;
    f.x = 1, f.y = 1, f.radius = 0.5f, f.color = Blue;
    expectWindow(FigureFitWindow(f, {}, 0.05f), 0.45f, 1.55f, 0.45f, 1.55f);
    RasterSurface s = canvas();
    DrawCircleFigure(s, f);
    EXPECT_EQ(s.point(1, 1), Blue);
    EXPECT_EQ(s.point(1.3, 1.3), Blue);
    EXPECT_EQ(s.point(1.4, 1.4), White);
    f.filled = false;
    RasterSurface o = canvas();
    DrawCircleFigure(o, f);
    EXPECT_EQ(o.point(1, 1), White);
    EXPECT_EQ(o.point(1.5, 1), Blue);
}

// ---- the design polygon, outline and filled

TEST(DesignPolygonOutline, FollowsThePathsAndLiftsThePen) {
    RasterSurface s = canvas();
    PolygonOutlineFigure f;
    f.color = Red;
    DrawInitialSet(s, BuiltInPolygon(0), f);
    EXPECT_EQ(s.point(0.5, 0), Red);
    EXPECT_EQ(s.point(1, 0.5), Red);
    EXPECT_EQ(s.point(0.1f, 0.5), Red);  // the mark
    EXPECT_EQ(s.point(0.3, 0.1f), Red);
    EXPECT_TRUE(clearAround(s, 0.05, 0.45, Red)) << "no line from (0,0) to the mark";
    EXPECT_EQ(s.point(0.5, 0.5), White);
    EXPECT_EQ(s.point(1.5, 0.5), White);
}

TEST(DesignPolygonOutline, FitIsTheVertexBoxWithoutPenLifts) {
    expectWindow(FigureFitWindow(PolygonOutlineFigure{}, BuiltInPolygon(1), 0.02f), -0.02f, 1.02f, -0.02f,
                 0.8860254f);
}

TEST(DesignPolygonFilled, FillsEveryPathThatEnclosesSomething) {
    RasterSurface s = canvas();
    PolygonFilledFigure f;
    f.color = Blue;
    EXPECT_TRUE(DrawInitialSetFilled(s, BuiltInPolygon(6), f));
    EXPECT_EQ(s.point(0.5, 0.3), Blue);
    EXPECT_EQ(s.point(0.9, 0.6), White);
    EXPECT_EQ(s.point(-0.1, 0.1), White);
}

TEST(DesignPolygonFilled, InvisibleOutlineKeepsAWidePenOff) {
    PolygonFilledFigure f;
    f.color = Blue;
    f.penWidth = 15;
    RasterSurface visible = canvas(), invisible = canvas();
    DrawInitialSetFilled(visible, BuiltInPolygon(7), f);
    f.optVisible = false;
    DrawInitialSetFilled(invisible, BuiltInPolygon(7), f);
    EXPECT_EQ(visible.point(-0.1, 0.5), Blue);
    EXPECT_EQ(invisible.point(-0.1, 0.5), White);
    EXPECT_EQ(invisible.point(0.5, 0.5), Blue);
}

TEST(DesignPolygonFilled, ALineCannotBeDrawn) {
    const PolygonFilledFigure f;
    EXPECT_EQ(CheckPolygonFillDialog(BuiltInPolygon(4), f).message, "Polygon cannot be drawn");
    EXPECT_FALSE(CheckPolygonFillDialog(BuiltInPolygon(4), f).value);
    ScriptedHost host;
    EXPECT_FALSE(AcceptChecked(host, CheckPolygonFillDialog(BuiltInPolygon(5), f)));
    EXPECT_EQ(host.shown(), (std::vector<ShownMessage>{{"Error", "Polygon cannot be drawn"}}));
    RasterSurface s = canvas();
    EXPECT_FALSE(DrawInitialSetFilled(s, BuiltInPolygon(4), f));
    EXPECT_EQ(countOf(s, Black), 0u);
    // The oriented line's arrowhead encloses something, so it can be filled.
    EXPECT_TRUE(CheckPolygonFillDialog(BuiltInPolygon(2), f).value);
    EXPECT_TRUE(CheckPolygonFillDialog(BuiltInPolygon(0), f).value);
}

TEST(FigurePen, WidthInWorldUnitsIsRounded) {
    const RasterSurface s = canvas();  // 0.02 world units to a pixel
    EXPECT_FLOAT_EQ(PenWidthInWorld(s, 3), 0.06f);
    RasterSurface fine(300, 300);
    fine.setScale(0, 1, 1, 0);
    EXPECT_FLOAT_EQ(PenWidthInWorld(fine, 1), 0.003f);
}

// ---- choosing a figure

struct ChooseFigure : ::testing::Test {
    Workbench wb;
    InitialFigures figs;
    RasterSurface picfractal = canvas();
    RasterSurface picImage3 = canvas();
    DesignPolygon polygon = BuiltInPolygon(7);
    void SetUp() override {
        CircleFigure c;
        c.x = 1, c.y = 1, c.radius = 0.5f, c.color = Red;
        ASSERT_TRUE(AcceptFigure(wb, figs, 6, FigureParameters{c}, polygon, picfractal, picImage3));
    }
};

TEST_F(ChooseFigure, AcceptedFigureIsDrawnIntoBothPictures) {
    EXPECT_EQ(wb.DetFigure, 6);
    EXPECT_EQ(picfractal.point(1, 1), Red);
    EXPECT_TRUE(samePixels(picfractal, picImage3));
    LineFigure l;
    l.x1 = -0.5f, l.y1 = 2.5f, l.x2 = 2.5f, l.y2 = 2.5f, l.color = Blue;
    ASSERT_TRUE(AcceptFigure(wb, figs, 2, FigureParameters{l}, polygon, picfractal, picImage3));
    EXPECT_EQ(wb.DetFigure, 2);
    EXPECT_EQ(picfractal.point(1, 1), White) << "the old figure is cleared";
    EXPECT_EQ(picImage3.point(1, 2.5), Blue);
}

TEST_F(ChooseFigure, CancellingAnyDialogLeavesPictureAndDetFigure) {
    const RasterSurface before = picfractal;
    const RasterSurface before3 = picImage3;
    for (int figure = 0; figure <= 6; ++figure) {
        EXPECT_FALSE(AcceptFigure(wb, figs, figure, std::nullopt, polygon, picfractal, picImage3));
        EXPECT_EQ(wb.DetFigure, 6);
        EXPECT_TRUE(samePixels(picfractal, before));
        EXPECT_TRUE(samePixels(picImage3, before3));
        if (figure != 6) {
            EXPECT_FALSE(figs.last[figure]) << figure;
        }
    }
}

TEST_F(ChooseFigure, PictureFigureTurnsOnImageColoursAndADrawnOneRestores) {
    const std::string ifs = MenuTable::key("mnuDrawDetColorItems", 0);
    const std::string image = MenuTable::key("mnuDrawDetColorItems", 1);
    wb.Menu.setChecked(ifs, true);
    wb.Menu.setChecked(image, false);
    FigureColorItems(wb, figs, 7);
    EXPECT_FALSE(wb.menu(ifs).checked);
    EXPECT_TRUE(wb.menu(image).checked);
    FigureColorItems(wb, figs, 8);  // remembered once: still the choice from before the pictures
    FigureColorItems(wb, figs, 3);
    EXPECT_TRUE(wb.menu(ifs).checked);
    EXPECT_FALSE(wb.menu(image).checked);
    // With nothing remembered a drawn figure leaves the items alone.
    wb.Menu.setChecked(ifs, false);
    wb.Menu.setChecked(image, true);
    FigureColorItems(wb, figs, 4);
    EXPECT_TRUE(wb.menu(image).checked);
}

TEST(PictureFigure, FileDialogOffersTheImageFilters) {
    ScriptedHost host;
    host.fileNames.push_back(std::string("/tmp/a.png"));
    EXPECT_EQ(ChoosePictureFile(host), std::optional<std::string>("/tmp/a.png"));
    ASSERT_EQ(host.dialogs().size(), 1u);
    const FileDialogRequest& r = host.dialogs()[0];
    EXPECT_EQ(r.title, "Open Image File");
    ASSERT_EQ(r.filters.size(), 5u);
    EXPECT_EQ(r.filters[0].description, "Images (*.gif; *.png; *.jpg; *.jpeg; *.bmp)");
    EXPECT_EQ(r.filters[0].pattern, "*.bmp; *.gif; *.jpg; *.jpeg; *.png");
    EXPECT_EQ(r.filters[3].description, "JPG images (*.jpg; *.jpeg)");
    EXPECT_EQ(r.filters[4].pattern, "*.bmp");
    EXPECT_TRUE(host.shown().empty());
}

TEST(PictureFigure, CancelIsSilentAndAnEmptyNameIsAnError) {
    ScriptedHost host;
    host.fileNames.push_back(std::nullopt);
    EXPECT_EQ(PictureName(host), "zzcancelzz");
    host.fileNames.push_back(std::nullopt);
    EXPECT_FALSE(ChoosePictureFile(host));
    EXPECT_TRUE(host.shown().empty());
    host.fileNames.push_back(std::string());
    EXPECT_FALSE(ChoosePictureFile(host));
    EXPECT_EQ(host.shown(), (std::vector<ShownMessage>{{"Error", "Error selecting file."}}));
}

TEST(PolygonPreviewPicture, ShowsTheWholePolygonInTheFiguresPen) {
    PolygonOutlineFigure f;
    f.color = Red;
    f.penWidth = 3;
    const RasterSurface s = PolygonPreview(BuiltInPolygon(0), f, 100);
    EXPECT_EQ(s.width(), 100);
    EXPECT_EQ(s.point(0.5, 0), Red) << "the bottom side";
    EXPECT_EQ(s.point(0.1, 0.5), Red) << "the mark behind the pen lift";
    EXPECT_EQ(s.point(0.5, 0.5), White);
    EXPECT_EQ(s.point(0.05, 0.45), White) << "no line across the pen lift";
    EXPECT_GT(countOf(s, Red), 4 * 60 * 3);
}

TEST(PlacedPicture, ScalingToFitKeepsItsPixelPosition) {
    RasterSurface stamp(10, 6, Red);
    stamp.clear();
    RasterSurface before(200, 200, White), after(200, 200, White);
    const WorldWindow w1{-1, 3, -1, 3}, w2{-5.5f, 0.5f, 2, 8};
    before.setScale(w1.xmin, w1.ymax, w1.xmax, w1.ymin);
    after.setScale(w2.xmin, w2.ymax, w2.xmax, w2.ymin);
    double PasteX = 0.3, PasteY = 1.7;
    before.paint(stamp, PasteX, PasteY, RasterOp::Copy);
    PastePositionAfterRescale(w1, w2, 200, PasteX, PasteY);
    after.paint(stamp, PasteX, PasteY, RasterOp::Copy);
    EXPECT_EQ(countOf(after, Red), 60u);
    EXPECT_TRUE(samePixels(before, after));
    EXPECT_NEAR(PasteX, -5.5 + 1.3 * 1.5, 1e-9);
}

}  // namespace
}  // namespace quillane
