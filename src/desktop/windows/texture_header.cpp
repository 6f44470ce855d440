#include "desktop/windows/texture_header.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <algorithm>

#include "desktop/dialogs/shown_text.h"
#include "desktop/frame/context_menu.h"

namespace velk {
namespace {

constexpr int kButtonWidth = 14;  // pixels
constexpr int kNameHeight = 11;   // of a field's name above it
constexpr int kNameFont = 9;
constexpr int kNumberFont = 11;
constexpr int kGap = 2;
constexpr double kLargest = 1e6;
constexpr const char* kMeanings[] = {"Shift to the right, in texels", "Shift downwards, in texels",
                                     "Rotation in degrees", "Scale across", "Scale down"};

QFont FontOf(const QWidget& widget, int pixels) {
  QFont font = widget.font();
  font.setPixelSize(pixels);
  return font;
}

}  // namespace

TextureNumber::TextureNumber(TexturePanel& panel, TextureField field, QWidget* parent)
    : QDoubleSpinBox(parent), panel_(panel), field_(field) {
  setLocale(QLocale::c());
  setDecimals(6);
  setRange(-kLargest, kLargest);
  setButtonSymbols(NoButtons);
  setKeyboardTracking(false);
  setFocusPolicy(Qt::ClickFocus);
  setFrame(true);
  setFont(FontOf(*this, kNumberFont));
  setToolTip(QString::fromLatin1(kMeanings[static_cast<size_t>(field)]));
  setStatusTip(toolTip());
  connect(lineEdit(), &QLineEdit::textEdited, this, [this] { typed_ = true; });
  connect(this, &QDoubleSpinBox::valueChanged, this, &TextureNumber::take);
  connect(this, &QAbstractSpinBox::editingFinished, this, [this] {
    typed_ = false;
    refresh();
  });
  refresh();
}

void TextureNumber::refresh() {
  if (hasFocus() && typed_) return;
  const QSignalBlocker quiet(this);
  setValue(TextureFieldValue(panel_.choice(), field_));
  lineEdit()->setText(textFromValue(value()));
}

void TextureNumber::take(double number) {
  if (!typed_) return refresh();
  typed_ = false;
  panel_.setField(field_, number);
  refresh();
}

void TextureNumber::stepBy(int steps) {
  interpretText();
  for (int i = 0; i < std::abs(steps); ++i) panel_.step(field_, steps < 0 ? -1 : 1);
  refresh();
  selectAll();
}

QString TextureNumber::textFromValue(double /*value*/) const {
  return ShownText(TextureFieldText(panel_.choice(), field_));
}

double TextureNumber::valueFromText(const QString& text) const {
  return QLocale::c().toDouble(QString(text).replace(',', '.'));
}

QValidator::State TextureNumber::validate(QString& text, int& cursor) const {
  text.replace(',', '.');
  return QDoubleSpinBox::validate(text, cursor);
}

TextureStepButton::TextureStepButton(TexturePanel& panel, TextureField field, int direction, QWidget* parent)
    : QToolButton(parent), panel_(panel), field_(field), direction_(direction) {
  setText(direction > 0 ? QStringLiteral("+") : QStringLiteral("-"));
  setFont(FontOf(*this, kNumberFont));
  setFocusPolicy(Qt::NoFocus);
  timer_.setInterval(kHeldButtonTick);
  connect(&timer_, &QTimer::timeout, this, &TextureStepButton::tick);
}

// Any other button that goes down, or any that goes up, ends the repeating.
void TextureStepButton::mousePressEvent(QMouseEvent* event) {
  timer_.stop();
  held_.stop();
  if (event->button() != Qt::LeftButton) return;
  setDown(true);
  // A number that was typed and not accepted yet counts.
  if (auto* typed = qobject_cast<QAbstractSpinBox*>(QApplication::focusWidget())) typed->interpretText();
  panel_.step(field_, direction_);
  held_.press(field_, direction_);
  timer_.start();
}

void TextureStepButton::mouseReleaseEvent(QMouseEvent* event) {
  timer_.stop();
  held_.stop();
  if (event->button() == Qt::LeftButton) setDown(false);
}

void TextureStepButton::tick() {
  if (held_.tick()) panel_.step(held_.field(), held_.direction());
}

TextureHeader::TextureHeader(Editor& editor, QWidget* parent)
    : QWidget(parent), editor_(editor), label_(new QLabel(this)) {
  label_->setFont(FontOf(*this, kNumberFont));
  TexturePanel& panel = editor.panels().textures;
  for (int i = 0; i < kTextureFields; ++i) {
    const auto field = static_cast<TextureField>(i);
    Unit& unit = units_[static_cast<size_t>(i)];
    unit.name = new QLabel(QString::fromLatin1(kTextureFieldLabels[i]), this);
    unit.name->setFont(FontOf(*this, kNameFont));
    unit.number = new TextureNumber(panel, field, this);
    unit.plus = new TextureStepButton(panel, field, 1, this);
    unit.minus = new TextureStepButton(panel, field, -1, this);
  }
  setMinimumWidth(1);
}

bool TextureHeader::hasLabel() const {
  const Settings& settings = editor_.settings();
  const int fields = kTextureFields * (settings.tex_field_width + kButtonWidth + kGap);
  return width() >= settings.tex_label_width + kGap + fields;
}

int TextureHeader::fieldsLeft() const {
  return hasLabel() ? editor_.settings().tex_label_width + kGap : kGap;
}

void TextureHeader::layOut() {
  const Settings& settings = editor_.settings();
  const bool wide = hasLabel();
  const int left = fieldsLeft();
  const int pitch = wide ? settings.tex_field_width + kButtonWidth + kGap : (width() - kGap) / kTextureFields;
  const int button = settings.tex_button_height;
  const int top = (height() - 2 * button) / 2;
  label_->setVisible(wide);
  label_->setGeometry(kGap, 0, settings.tex_label_width - kGap, height());
  for (int i = 0; i < kTextureFields; ++i) {
    const Unit& unit = units_[static_cast<size_t>(i)];
    const int x = left + i * pitch;
    const int field = pitch - kButtonWidth - kGap;
    unit.name->setGeometry(x + 1, 0, field, kNameHeight);
    unit.number->setGeometry(x, kNameHeight, field, std::max(1, height() - kNameHeight - 1));
    unit.plus->setGeometry(x + field, top, kButtonWidth, button);
    unit.minus->setGeometry(x + field, top + button, kButtonWidth, button);
  }
}

void TextureHeader::resizeEvent(QResizeEvent*) { layOut(); }

void TextureHeader::refresh() {
  setFixedHeight(editor_.panels().textures.layout().headerHeight);
  layOut();
  for (const Unit& unit : units_) unit.number->refresh();
  showLabel();
}

void TextureHeader::showLabel() { label_->setText(ShownText(editor_.panels().textures.label())); }

void TextureHeader::contextMenuEvent(QContextMenuEvent* event) {
  ShowMenu(editor_.panels().textures.contextMenu(), *this, event->pos());
}

}  // namespace velk
