#include "shell/sierpinski_window.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QVBoxLayout>
#include <algorithm>

#include "core/numbers.h"
#include "shell/surface_image.h"

namespace quillane {
namespace {

// The canvas shows the unit base with a margin; A may stand up to CanvasTop.
constexpr float CanvasLeft = -0.1f, CanvasRight = 1.1f, CanvasBottom = -0.1f, CanvasTop = 1.1f;

class TriangleCanvas : public QWidget {
  public:
    TriangleCanvas(SierpinskiWindow& owner, QWidget* parent) : QWidget(parent), owner_(owner) {
        setObjectName("picCanvas");
        setFixedSize(240, 240);
    }
    QPointF toScreen(float x, float y) const {
        return {(x - CanvasLeft) / (CanvasRight - CanvasLeft) * width(),
                (CanvasTop - y) / (CanvasTop - CanvasBottom) * height()};
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.fillRect(rect(), Qt::white);
        if (const RasterSurface* twist = owner_.twistPicture()) p.drawImage(rect(), ImageOfSurface(*twist));
        const TrianglePoint A = owner_.form().PointA;
        const QPointF a = toScreen(A.x, A.y), b = toScreen(0, 0), c = toScreen(1, 0);
        p.setPen(Qt::black);
        p.drawPolygon(QPolygonF{{a, b, c}});
        p.setBrush(Qt::red);
        p.drawEllipse(a, 4, 4);
        p.drawText(a + QPointF(6, -6), "A");
        p.drawText(b + QPointF(-12, 14), "B");
        p.drawText(c + QPointF(4, 14), "C");
    }
    void mousePressEvent(QMouseEvent* e) override { drag(e); }
    void mouseMoveEvent(QMouseEvent* e) override {
        if (e->buttons() & Qt::LeftButton) drag(e);
    }

  private:
    void drag(QMouseEvent* e) {
        const QPointF q = e->position();
        owner_.dragApexTo(static_cast<float>(CanvasLeft + q.x() / width() * (CanvasRight - CanvasLeft)),
                          static_cast<float>(CanvasTop - q.y() / height() * (CanvasTop - CanvasBottom)));
    }
    SierpinskiWindow& owner_;
};

QLineEdit* box(QWidget* parent, const QString& name, const std::string& text) {
    auto* edit = new QLineEdit(QString::fromStdString(text), parent);
    edit->setObjectName(name);
    edit->setMaximumWidth(80);
    return edit;
}

QString colorStyle(Color c) {
    return QString("background-color: #%1%2%3")
        .arg(RedOf(c), 2, 16, QChar('0'))
        .arg(GreenOf(c), 2, 16, QChar('0'))
        .arg(BlueOf(c), 2, 16, QChar('0'));
}

QPushButton* button(QWidget* parent, const char* name, const char* text) {
    auto* b = new QPushButton(text, parent);
    b->setObjectName(name);
    return b;
}

}  // namespace

SierpinskiWindow::SierpinskiWindow(MainWindow& frame)
    : GeneratorWindow(frame, SierpinskiTrianglesExample, SierpinskiCaption), twist_(240, 240, White) {
    twist_.setScale(CanvasLeft, CanvasTop, CanvasRight, CanvasBottom);
    auto* layout = new QHBoxLayout(body());
    auto* left = new QVBoxLayout;
    picCanvas_ = new TriangleCanvas(*this, body());
    left->addWidget(picCanvas_);
    auto* apexRow = new QHBoxLayout;
    apexRow->addWidget(new QLabel("A = (", body()));
    txtAx_ = box(body(), "txtAx", "");
    txtAy_ = box(body(), "txtAy", "");
    apexRow->addWidget(txtAx_);
    apexRow->addWidget(txtAy_);
    apexRow->addWidget(new QLabel(")", body()));
    left->addLayout(apexRow);
    layout->addLayout(left);

    auto* right = new QVBoxLayout;
    auto* angles = new QGroupBox("Angles", body());
    auto* angleGrid = new QGridLayout(angles);
    const char* corner[3] = {"A", "B", "C"};
    for (int k = 0; k < 3; ++k) {
        txtAngle_[static_cast<size_t>(k)] =
            box(angles, QString("txtAngle(%1)").arg(k), form_.txtAngle[static_cast<size_t>(k)]);
        angleGrid->addWidget(new QLabel(corner[k], angles), 0, k * 2);
        angleGrid->addWidget(txtAngle_[static_cast<size_t>(k)], 0, k * 2 + 1);
    }
    auto* cmdTriangle = button(angles, "cmdTriangle", "Triangle");
    auto* cmdTriDefault = button(angles, "cmdTriDefault", "Default");
    angleGrid->addWidget(cmdTriangle, 1, 0, 1, 3);
    angleGrid->addWidget(cmdTriDefault, 1, 3, 1, 3);
    right->addWidget(angles);

    auto* factors = new QGroupBox("Factors", body());
    auto* factorGrid = new QGridLayout(factors);
    const char* side[3] = {"a", "b", "c"};
    for (int k = 0; k < 3; ++k) {
        txtPara_[static_cast<size_t>(k)] =
            box(factors, QString("txtPara(%1)").arg(k + 1), form_.txtPara[static_cast<size_t>(k)]);
        factorGrid->addWidget(new QLabel(side[k], factors), 0, k * 2);
        factorGrid->addWidget(txtPara_[static_cast<size_t>(k)], 0, k * 2 + 1);
    }
    auto* cmdDefault = button(factors, "cmdDefault", "Default");
    auto* cmdRandom = button(factors, "cmdRandom", "Random");
    auto* cmdPedal = button(factors, "cmdPedal", "Pedal");
    factorGrid->addWidget(cmdDefault, 1, 0, 1, 2);
    factorGrid->addWidget(cmdRandom, 1, 2, 1, 2);
    factorGrid->addWidget(cmdPedal, 1, 4, 1, 2);
    right->addWidget(factors);

    auto* methods = new QHBoxLayout;
    for (int k = 0; k < 3; ++k) {
        opt_[static_cast<size_t>(k)] = new QRadioButton(QString("Method %1").arg(k + 1), body());
        opt_[static_cast<size_t>(k)]->setObjectName(QString("opt%1").arg(k + 1));
        methods->addWidget(opt_[static_cast<size_t>(k)]);
        connect(opt_[static_cast<size_t>(k)], &QRadioButton::toggled, this, [this, k](bool on) {
            if (!on) return;
            form_.method = k + 1;
            showForm();
        });
    }
    right->addLayout(methods);
    picMethod_ = new QLabel(body());
    picMethod_->setObjectName("picMethod");
    right->addWidget(picMethod_);
    auto* cmdCreate = button(body(), "cmdCreate", "Create IFS");
    right->addWidget(cmdCreate);
    right->addWidget(twistPanel());
    right->addStretch();
    layout->addLayout(right);

    connect(cmdTriangle, &QPushButton::clicked, this, [this] {
        readBoxes();
        SierpinskiTriangleFromAngles(form_, host());
        showForm();
    });
    connect(cmdTriDefault, &QPushButton::clicked, this, [this] {
        for (QLineEdit* t : txtAngle_) t->setText(DefaultAngleText);
    });
    connect(cmdDefault, &QPushButton::clicked, this, [this] {
        for (QLineEdit* t : txtPara_) t->setText(DefaultFactorText);
    });
    connect(cmdRandom, &QPushButton::clicked, this, [this] {
        readBoxes();
        SierpinskiRandomFactors(form_, state().wb);
        showForm();
    });
    connect(cmdPedal, &QPushButton::clicked, this, [this] {
        readBoxes();
        SierpinskiPedalFactors(form_);
        showForm();
    });
    connect(txtAx_, &QLineEdit::returnPressed, this, [this] { typedApex(); });
    connect(txtAy_, &QLineEdit::returnPressed, this, [this] { typedApex(); });
    connect(cmdCreate, &QPushButton::clicked, this, [this] { create(); });
    showForm();
}

QWidget* SierpinskiWindow::twistPanel() {
    auto* panel = new QGroupBox(TwistPanelCaption, body());
    panel->setObjectName("frmTwist");
    auto* grid = new QGridLayout(panel);
    grid->addWidget(new QLabel(TwistSliderCaption, panel), 0, 0, 1, 4);
    grid->addWidget(new QLabel("None", panel), 1, 0);
    sliTwist_ = new QSlider(Qt::Horizontal, panel);
    sliTwist_->setObjectName("sliTwist");
    sliTwist_->setRange(0, TwistSliderMax);
    sliTwist_->setValue(TwistSliderMax / 5);
    grid->addWidget(sliTwist_, 1, 1, 1, 2);
    grid->addWidget(new QLabel("Large", panel), 1, 3);
    grid->addWidget(new QLabel("Iterations", panel), 2, 0);
    cmbIterations_ = new QComboBox(panel);
    cmbIterations_->setObjectName("cmbIterations");
    for (int n = 1; n <= TwistMaxIterations; ++n) cmbIterations_->addItem(QString::number(n));
    cmbIterations_->setCurrentIndex(TwistSettings{}.iterations - 1);
    grid->addWidget(cmbIterations_, 2, 1);
    chkFilled_ = new QCheckBox("Filled", panel);
    chkFilled_->setObjectName("chkFilled");
    chkFilled_->setChecked(true);
    grid->addWidget(chkFilled_, 2, 2);
    chkOpenTwist_ = new QCheckBox("Open twist", panel);
    chkOpenTwist_->setObjectName("chkOpenTwist");
    grid->addWidget(chkOpenTwist_, 2, 3);
    optColor_[0] = new QRadioButton("One color", panel);
    optColor_[1] = new QRadioButton("Color by corner", panel);
    for (size_t k = 0; k < 2; ++k) optColor_[k]->setObjectName(QString("optColor(%1)").arg(k));
    auto* colors = new QButtonGroup(panel);
    colors->addButton(optColor_[0]);
    colors->addButton(optColor_[1]);
    optColor_[0]->setChecked(true);
    grid->addWidget(optColor_[0], 3, 0);
    picColor_ = button(panel, "picColor", "");
    picColor_->setFixedSize(28, 20);
    picColor_->setStyleSheet(colorStyle(twistColor_));
    grid->addWidget(picColor_, 3, 1);
    grid->addWidget(optColor_[1], 3, 2);
    auto* cmdDraw = button(panel, "cmdDraw", "Draw");
    grid->addWidget(cmdDraw, 3, 3);
    connect(picColor_, &QPushButton::clicked, this, [this] {
        if (const auto c = host().chooseColor(twistColor_)) {
            twistColor_ = *c;
            picColor_->setStyleSheet(colorStyle(*c));
        }
    });
    connect(cmdDraw, &QPushButton::clicked, this, [this] { drawTwist(); });
    return panel;
}

TwistForm SierpinskiWindow::twistForm() const {
    TwistForm t;
    t.settings.sliTwist = sliTwist_->value();
    t.settings.iterations = cmbIterations_->currentIndex() + 1;
    t.settings.alternate = chkOpenTwist_->isChecked();
    t.chkFilled = chkFilled_->isChecked();
    t.byCorner = optColor_[1]->isChecked();
    t.picColor = twistColor_;
    return t;
}

void SierpinskiWindow::drawTwist() {
    readBoxes();
    if (!SierpinskiTwistDraw(form_, twistForm(), twist_, host())) return;
    showTwist_ = true;
    picCanvas_->update();
}

void SierpinskiWindow::readBoxes() {
    for (size_t k = 0; k < 3; ++k) {
        form_.txtAngle[k] = txtAngle_[k]->text().toStdString();
        form_.txtPara[k] = txtPara_[k]->text().toStdString();
    }
}

void SierpinskiWindow::showForm() {
    for (size_t k = 0; k < 3; ++k) {
        txtAngle_[k]->setText(QString::fromStdString(form_.txtAngle[k]));
        txtPara_[k]->setText(QString::fromStdString(form_.txtPara[k]));
    }
    opt_[static_cast<size_t>(form_.method - 1)]->setChecked(true);
    const auto& rules = SierpinskiRules(form_.method);
    picMethod_->setText(QString::fromStdString(rules[0] + "\n" + rules[1] + "\n" + rules[2]));
    txtAx_->setText(QString::fromStdString(Format(form_.PointA.x, "0.00000")));
    txtAy_->setText(QString::fromStdString(Format(form_.PointA.y, "0.00000")));
    picCanvas_->update();
}

void SierpinskiWindow::typedApex() {
    const float x = static_cast<float>(Val(txtAx_->text().toStdString()));
    const float y = static_cast<float>(Val(txtAy_->text().toStdString()));
    if (CheckPointA(x, y, host())) form_.PointA = {x, y};
    readBoxes();
    showForm();
}

void SierpinskiWindow::dragApexTo(float x, float y) {
    // A new apex leaves the twisted picture behind until it is drawn again.
    showTwist_ = false;
    // The drag stays where the typed checks would let it.
    form_.PointA = {std::clamp(x, 0.001f, 0.999f), std::clamp(y, 0.001f, 0.999f)};
    readBoxes();
    showForm();
}

void SierpinskiWindow::create() {
    readBoxes();
    if (SierpinskiCreate(state(), host(), form_)) built();
}

}  // namespace quillane
