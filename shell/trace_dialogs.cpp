#include "shell/trace_dialogs.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>

#include "app/overlay_commands.h"
#include "app/trace_commands.h"
#include "core/numbers.h"

namespace quillane {

namespace {

QDialogButtonBox* okCancel(QDialog* d) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, d);
    buttons->button(QDialogButtonBox::Ok)->setObjectName("cmdOK");
    buttons->button(QDialogButtonBox::Cancel)->setObjectName("cmdCancel");
    QObject::connect(buttons, &QDialogButtonBox::rejected, d, &QDialog::reject);
    return buttons;
}

// picDot: the dot as the trace draws it, black on the picture's white.
class DotSample : public QWidget {
  public:
    explicit DotSample(QComboBox* sizes, QWidget* parent) : QWidget(parent), sizes_(sizes) {
        setFixedSize(2 * 10 + 8, 2 * 10 + 8);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.fillRect(rect(), Qt::white);
        const int r = sizes_->currentText().toInt();
        p.setBrush(Qt::black);
        p.setPen(Qt::NoPen);
        p.drawEllipse(rect().center(), r, r);
    }

  private:
    QComboBox* sizes_;
};

}  // namespace

TracePointDialog::TracePointDialog(Host& host, float x, float y, QWidget* parent)
    : QDialog(parent), host_(host) {
    setObjectName("frmTracePoint");
    setWindowTitle("Initial Point");
    auto* form = new QFormLayout(this);
    txtX_ = new QLineEdit(QString::fromStdString(Trim(Str(x))), this);
    txtX_->setObjectName("txtX");
    txtY_ = new QLineEdit(QString::fromStdString(Trim(Str(y))), this);
    txtY_->setObjectName("txtY");
    form->addRow("x", txtX_);
    form->addRow("y", txtY_);
    QDialogButtonBox* buttons = okCancel(this);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        point_ = EvaluateTracePoint(txtX_->text().toStdString(), txtY_->text().toStdString(), host_);
        if (point_) accept();
    });
}

TracePointSizeDialog::TracePointSizeDialog(int size, QWidget* parent) : QDialog(parent) {
    setObjectName("frmTracePointSize");
    setWindowTitle("Dot Size");
    auto* form = new QFormLayout(this);
    cmbSize_ = new QComboBox(this);
    cmbSize_->setObjectName("cmbSize");
    for (int s : TraceDotSizes) cmbSize_->addItem(QString::number(s));
    const int at = cmbSize_->findText(QString::number(size));
    cmbSize_->setCurrentIndex(at >= 0 ? at : 1);
    picDot_ = new DotSample(cmbSize_, this);
    picDot_->setObjectName("picDot");
    connect(cmbSize_, &QComboBox::currentIndexChanged, picDot_, qOverload<>(&QWidget::update));
    form->addRow("Dot radius (pixels)", cmbSize_);
    form->addRow(picDot_);
    QDialogButtonBox* buttons = okCancel(this);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
}

int TracePointSizeDialog::size() const {
    return cmbSize_->currentText().toInt();
}

AxisSizeDialog::AxisSizeDialog(int thickness, QWidget* parent) : QDialog(parent) {
    setObjectName("frmAxisSize");
    setWindowTitle("Axis Thickness");
    auto* form = new QFormLayout(this);
    cmbThickness_ = new QComboBox(this);
    cmbThickness_->setObjectName("cmbThickness");
    for (int k = 1; k <= AxisThicknessChoices; ++k) cmbThickness_->addItem(QString::number(k));
    cmbThickness_->setCurrentIndex(std::clamp(thickness, 1, AxisThicknessChoices) - 1);
    form->addRow("Thickness (pixels)", cmbThickness_);
    QDialogButtonBox* buttons = okCancel(this);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
}

int AxisSizeDialog::listIndex() const {
    return cmbThickness_->currentIndex();
}

}  // namespace quillane
