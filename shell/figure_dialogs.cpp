#include "shell/figure_dialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <functional>
#include <map>

#include "shell/surface_image.h"

namespace quillane {

namespace {

const char* const DialogNames[7] = {"frmPolygonDesign", "frmPolygonFIll2", "frmLine",  "frmTriangle",
                                    "frmRectangle",     "frmPolygon",      "frmCircle"};
const char* const DialogTitles[7] = {"Design Polygon (outline)",
                                     "Design Polygon (filled)",
                                     "Line",
                                     "Triangle",
                                     "Rectangle",
                                     "Regular Polygon",
                                     "Circle"};

QString num(float v) {
    return QString::number(static_cast<double>(v));
}

// A dialog of named boxes whose OK runs `accept` and closes only when it says so.
class FigureDialog : public QDialog {
  public:
    FigureDialog(QWidget* parent, int figure, bool useIFSColors) : QDialog(parent), useIFSColors_(useIFSColors) {
        setObjectName(DialogNames[figure]);
        setWindowTitle(DialogTitles[figure]);
        form_ = new QFormLayout(this);
    }
    bool usesIFSColors() const { return chkColor_ && chkColor_->isChecked(); }
    QLineEdit* box(const char* name, const QString& label, const QString& text) {
        auto* b = new QLineEdit(text, this);
        b->setObjectName(name);
        form_->addRow(label, b);
        return b;
    }
    QCheckBox* check(const char* name, const QString& label, bool on) {
        auto* c = new QCheckBox(label, this);
        c->setObjectName(name);
        c->setChecked(on);
        form_->addRow(c);
        return c;
    }
    QSpinBox* spin(const char* name, const QString& label, int value, int lo, int hi) {
        auto* s = new QSpinBox(this);
        s->setObjectName(name);
        s->setRange(lo, hi);
        s->setValue(value);
        form_->addRow(label, s);
        return s;
    }
    // A button showing a colour; clicking it asks the host for another.
    QPushButton* colorButton(const char* name, const QString& label, Host& host, Color& color) {
        auto* b = new QPushButton(this);
        b->setObjectName(name);
        auto show = [b, &color] {
            b->setStyleSheet(QString("background-color: rgb(%1,%2,%3)")
                                 .arg(color & 0xFF)
                                 .arg((color >> 8) & 0xFF)
                                 .arg((color >> 16) & 0xFF));
        };
        show();
        connect(b, &QPushButton::clicked, this, [&host, &color, show] {
            if (std::optional<Color> c = host.chooseColor(color)) {
                color = *c;
                show();
            }
        });
        form_->addRow(label, b);
        return b;
    }
    void addRow(QWidget* w) { form_->addRow(w); }
    QRadioButton* radio(const char* name, const QString& label, bool on) {
        auto* r = new QRadioButton(label, this);
        r->setObjectName(name);
        r->setChecked(on);
        form_->addRow(r);
        return r;
    }
    void finish(std::function<bool()> onOk) {
        onOk_ = std::move(onOk);
        // Unchecked, the figure keeps its own colours through the levels ("Use Image Colors").
        chkColor_ = check("chkColor", "Use IFS Color Scheme", useIFSColors_);
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
        connect(buttons, &QDialogButtonBox::accepted, this, &FigureDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &FigureDialog::reject);
        form_->addRow(buttons);
    }
    void accept() override {
        if (onOk_ && onOk_()) QDialog::accept();
    }

  private:
    QFormLayout* form_;
    std::function<bool()> onOk_;
    bool useIFSColors_;
    QCheckBox* chkColor_ = nullptr;
};

template <class T>
T lastOr(const std::optional<FigureParameters>& last, T fallback) {
    if (last && std::holds_alternative<T>(*last)) return std::get<T>(*last);
    return fallback;
}

template <class T>
bool take(Host& host, const Checked<T>& verdict, std::optional<FigureParameters>& out) {
    if (!AcceptChecked(host, verdict)) return false;
    out = *verdict.value;
    return true;
}

// The outline-or-filled choice, line width and colour that the rectangle, regular polygon and circle
// share; the colour lives in `color`, which the button changes.
struct PenBoxes {
    QCheckBox* filled;
    QSpinBox* width;
};

template <class Figure>
PenBoxes penBoxes(FigureDialog& d, Host& host, const Figure& f, Color& color) {
    PenBoxes p{d.check("optFilled", "Filled", f.filled), d.spin("cmbThickness", "Line width", f.penWidth, 1, 21)};
    color = f.color;
    d.colorButton("picColor", "Colour", host, color);
    return p;
}

}  // namespace

std::optional<FigureParameters> AskFigure(QWidget* parent, Host& host, int figure,
                                          const DesignPolygon& polygon,
                                          const std::optional<FigureParameters>& last, bool& useIFSColors) {
    FigureDialog d(parent, figure, useIFSColors);
    std::optional<FigureParameters> result;
    // The colours the dialog's buttons change; they outlive the buttons.
    Color color = Black, fill = Black;
    if (figure == 0) {
        auto f = lastOr(last, PolygonOutlineFigure{});
        // picPolygon: the initial polygon as it will be drawn, redrawn with every change of pen.
        auto* preview = new QLabel(&d);
        preview->setObjectName("picPolygon");
        d.addRow(preview);
        auto* width = d.spin("cmbThickness", "Line width", f.penWidth, 1, 21);
        color = f.color;
        auto* pick = d.colorButton("cmLineColor", "Line colour", host, color);
        auto show = [preview, width, &color, &polygon] {
            PolygonOutlineFigure g;
            g.penWidth = width->value();
            g.color = color;
            preview->setPixmap(QPixmap::fromImage(ImageOfSurface(PolygonPreview(polygon, g, 160))));
        };
        show();
        QObject::connect(width, &QSpinBox::valueChanged, preview, show);
        QObject::connect(pick, &QPushButton::clicked, preview, show);
        d.finish([=, &result, &color]() mutable {
            f.penWidth = width->value();
            f.color = color;
            result = f;
            return true;
        });
    } else if (figure == 1) {
        auto f = lastOr(last, PolygonFilledFigure{});
        auto* outline = d.check("optVisible", "Show the outline", f.optVisible);
        d.finish([=, &result, &host]() mutable {
            f.optVisible = outline->isChecked();
            return take(host, CheckPolygonFillDialog(polygon, f), result);
        });
    } else if (figure == 2) {
        auto f = lastOr(last, LineFigure{});
        auto* x1 = d.box("txtX1", "X1", num(f.x1));
        auto* y1 = d.box("txtY1", "Y1", num(f.y1));
        auto* x2 = d.box("txtX2", "X2", num(f.x2));
        auto* y2 = d.box("txtY2", "Y2", num(f.y2));
        auto* width = d.spin("cmbWidth", "Line width", f.penWidth, 1, 21);
        color = f.color;
        d.colorButton("picColor", "Colour", host, color);
        d.finish([=, &result, &host, &color]() mutable {
            LineDialogText t{x1->text().toStdString(), y1->text().toStdString(), x2->text().toStdString(),
                             y2->text().toStdString(), width->value(),           color};
            return take(host, CheckLineDialog(t), result);
        });
    } else if (figure == 3) {
        const auto f = lastOr(last, TriangleFigure{});
        auto* equil = d.radio("optEquil", "Equilateral", f.shape == TriangleShape::Equilateral);
        auto* right = d.radio("optRight", "Right angled", f.shape == TriangleShape::Right);
        d.radio("optGeneral", "General (three corners)", f.shape == TriangleShape::General);
        auto* x = d.box("txtX", "x (lower left)", num(f.x));
        auto* y = d.box("txtY", "y (lower left)", num(f.y));
        auto* w = d.box("txtWidth", "Width", num(f.width));
        auto* h = d.box("txtHeight", "Height", num(f.height));
        QLineEdit* points[6];
        const char* const pointNames[6] = {"txtPoints0", "txtPoints1", "txtPoints2",
                                           "txtPoints3", "txtPoints4", "txtPoints5"};
        for (int k = 0; k < 6; ++k)
            points[k] = d.box(pointNames[k], QString("%1%2").arg(k % 2 ? "y" : "x").arg(k / 2 + 1),
                              num(k % 2 ? f.py[k / 2] : f.px[k / 2]));
        auto* filled = d.check("optFilled", "Filled", f.filled);
        auto* width = d.spin("cmbThickness", "Line width", f.penWidth, 1, 21);
        fill = f.fillColor;
        color = f.lineColor;
        d.colorButton("picFillColor", "Fill colour", host, fill);
        d.colorButton("picColor", "Line colour", host, color);
        d.finish([=, &result, &host, &color, &fill]() mutable {
            TriangleDialogText t;
            t.shape = equil->isChecked()   ? TriangleShape::Equilateral
                      : right->isChecked() ? TriangleShape::Right
                                           : TriangleShape::General;
            t.txtX = x->text().toStdString();
            t.txtY = y->text().toStdString();
            t.txtWidth = w->text().toStdString();
            t.txtHeight = h->text().toStdString();
            for (int k = 0; k < 6; ++k) t.txtPoints[k] = points[k]->text().toStdString();
            t.filled = filled->isChecked();
            t.thickness = width->value();
            t.fillColor = fill;
            t.lineColor = color;
            return take(host, CheckTriangleDialog(t), result);
        });
    } else if (figure == 4) {
        const auto f = lastOr(last, RectangleFigure{});
        auto* square = d.check("optsquare", "Square", f.square);
        auto* x = d.box("txtX", "x (lower left)", num(f.x));
        auto* y = d.box("txtY", "y (lower left)", num(f.y));
        auto* w = d.box("txtWidth", "Width", num(f.width));
        auto* h = d.box("txtHeight", "Height", num(f.height));
        const PenBoxes pen = penBoxes(d, host, f, color);
        d.finish([=, &result, &host, &color]() mutable {
            RectangleDialogText t{square->isChecked(),    x->text().toStdString(), y->text().toStdString(),
                                  w->text().toStdString(), h->text().toStdString(), pen.filled->isChecked(),
                                  pen.width->value(),      color};
            return take(host, CheckRectangleDialog(t), result);
        });
    } else if (figure == 5) {
        const auto f = lastOr(last, RegularPolygonFigure{});
        auto* sides = d.spin("OptSides", "Sides", f.sides, 3, 100);
        auto* x = d.box("txtX", "x (lower left)", num(f.x));
        auto* y = d.box("txtY", "y (lower left)", num(f.y));
        auto* w = d.box("txtWidth", "Width", num(f.width));
        const PenBoxes pen = penBoxes(d, host, f, color);
        d.finish([=, &result, &host, &color]() mutable {
            PolygonDialogText t{sides->value(),          x->text().toStdString(), y->text().toStdString(),
                                w->text().toStdString(), pen.filled->isChecked(), pen.width->value(),
                                color};
            return take(host, CheckPolygonDialog(t), result);
        });
    } else {
        const auto f = lastOr(last, CircleFigure{});
        auto* x = d.box("txtX", "Centre x", num(f.x));
        auto* y = d.box("txtY", "Centre y", num(f.y));
        auto* r = d.box("txtRadius", "Radius", num(f.radius));
        const PenBoxes pen = penBoxes(d, host, f, color);
        d.finish([=, &result, &host, &color]() mutable {
            CircleDialogText t{x->text().toStdString(), y->text().toStdString(), r->text().toStdString(),
                               pen.filled->isChecked(), pen.width->value(),      color};
            return take(host, CheckCircleDialog(t), result);
        });
    }
    if (d.exec() != QDialog::Accepted) return std::nullopt;
    useIFSColors = d.usesIFSColors();
    return result;
}

}  // namespace quillane
