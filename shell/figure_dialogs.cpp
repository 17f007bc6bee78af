#include "shell/figure_dialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QSpinBox>
#include <functional>
#include <map>

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
    FigureDialog(QWidget* parent, int figure) : QDialog(parent) {
        setObjectName(DialogNames[figure]);
        setWindowTitle(DialogTitles[figure]);
        form_ = new QFormLayout(this);
    }
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
    void finish(std::function<bool()> onOk) {
        onOk_ = std::move(onOk);
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

}  // namespace

std::optional<FigureParameters> AskFigure(QWidget* parent, Host& host, int figure,
                                          const DesignPolygon& polygon,
                                          const std::optional<FigureParameters>& last) {
    FigureDialog d(parent, figure);
    std::optional<FigureParameters> result;
    if (figure == 0) {
        auto f = lastOr(last, PolygonOutlineFigure{});
        auto* width = d.spin("cmbWidth", "Line width", f.penWidth, 1, 20);
        d.finish([=, &result, &host]() mutable {
            f.penWidth = width->value();
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
        const auto f = lastOr(last, LineFigure{});
        auto* x1 = d.box("txtX1", "X1", num(f.x1));
        auto* y1 = d.box("txtY1", "Y1", num(f.y1));
        auto* x2 = d.box("txtX2", "X2", num(f.x2));
        auto* y2 = d.box("txtY2", "Y2", num(f.y2));
        auto* width = d.spin("cmbWidth", "Line width", f.penWidth, 1, 20);
        d.finish([=, &result, &host]() mutable {
            LineDialogText t{x1->text().toStdString(), y1->text().toStdString(), x2->text().toStdString(),
                             y2->text().toStdString(), width->value(),           Black};
            return take(host, CheckLineDialog(t), result);
        });
    } else if (figure == 3) {
        const auto f = lastOr(last, TriangleFigure{});
        auto* x = d.box("txtX", "x (lower left)", num(f.x));
        auto* y = d.box("txtY", "y (lower left)", num(f.y));
        auto* w = d.box("txtWidth", "Width", num(f.width));
        auto* filled = d.check("chkFilled", "Filled", true);
        d.finish([=, &result, &host]() mutable {
            TriangleDialogText t;
            t.shape = TriangleShape::Equilateral;
            t.txtX = x->text().toStdString();
            t.txtY = y->text().toStdString();
            t.txtWidth = w->text().toStdString();
            t.txtHeight = t.txtWidth;
            t.filled = filled->isChecked();
            return take(host, CheckTriangleDialog(t), result);
        });
    } else if (figure == 4) {
        const auto f = lastOr(last, RectangleFigure{});
        auto* square = d.check("optsquare", "Square", f.square);
        auto* x = d.box("txtX", "x (lower left)", num(f.x));
        auto* y = d.box("txtY", "y (lower left)", num(f.y));
        auto* w = d.box("txtWidth", "Width", num(f.width));
        auto* h = d.box("txtHeight", "Height", num(f.height));
        auto* filled = d.check("chkFilled", "Filled", f.filled);
        d.finish([=, &result, &host]() mutable {
            RectangleDialogText t{square->isChecked(),
                                  x->text().toStdString(),
                                  y->text().toStdString(),
                                  w->text().toStdString(),
                                  h->text().toStdString(),
                                  filled->isChecked(),
                                  1,
                                  Black};
            return take(host, CheckRectangleDialog(t), result);
        });
    } else if (figure == 5) {
        const auto f = lastOr(last, RegularPolygonFigure{});
        auto* sides = d.spin("cmbSides", "Sides", f.sides, 3, 100);
        auto* x = d.box("txtX", "x (lower left)", num(f.x));
        auto* y = d.box("txtY", "y (lower left)", num(f.y));
        auto* w = d.box("txtWidth", "Width", num(f.width));
        auto* filled = d.check("chkFilled", "Filled", f.filled);
        d.finish([=, &result, &host]() mutable {
            PolygonDialogText t{sides->value(),
                                x->text().toStdString(),
                                y->text().toStdString(),
                                w->text().toStdString(),
                                filled->isChecked(),
                                1,
                                Black};
            return take(host, CheckPolygonDialog(t), result);
        });
    } else {
        const auto f = lastOr(last, CircleFigure{});
        auto* x = d.box("txtX", "Centre x", num(f.x));
        auto* y = d.box("txtY", "Centre y", num(f.y));
        auto* r = d.box("txtRadius", "Radius", num(f.radius));
        auto* filled = d.check("chkFilled", "Filled", f.filled);
        d.finish([=, &result, &host]() mutable {
            CircleDialogText t{x->text().toStdString(),
                               y->text().toStdString(),
                               r->text().toStdString(),
                               filled->isChecked(),
                               1,
                               Black};
            return take(host, CheckCircleDialog(t), result);
        });
    }
    if (d.exec() != QDialog::Accepted) return std::nullopt;
    return result;
}

}  // namespace quillane
