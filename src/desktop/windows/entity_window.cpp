#include "desktop/windows/entity_window.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include "desktop/dialogs/shown_text.h"

namespace velk {
namespace {

constexpr int kMargin = 4;
constexpr int kButtonRoom = 8;  // of a button above and below its basis
constexpr int kLinkLines = 2;
constexpr const char* kAngles[] = {"0", "45", "90", "135", "180", "225", "270", "315", "Up", "Dn"};

// As it stands, without a mnemonic.
QString Plain(const std::string& text) { return ShownText(text).replace('&', "&&"); }

int AngleOf(const QString& text) {
  if (text == "Up") return -1;
  return text == "Dn" ? -2 : text.toInt();
}

void ShowText(QLineEdit& field, const std::string& text) {
  if (field.text() != ShownText(text)) field.setText(ShownText(text));
}

}  // namespace

EntityView::EntityView(Editor& editor, QWidget* parent)
    : QWidget(parent),
      editor_(editor),
      classes_(new EntityClassBox(editor.classes())),
      make_(new QPushButton("Make Entity")),
      comment_(new QPlainTextEdit),
      label_(new QLabel),
      all_(new QCheckBox("All selected")),
      pairs_(new EntityPairList(editor.panels().entities)),
      dial_(new EntityAngleDial),
      links_(new QListWidget) {
  const Settings& settings = editor.settings();
  setWindowTitle(ShownText(WindowTitle(editor, ToolWindow::Entities)));
  QFont small("Arial");
  small.setPixelSize(settings.entity_font_size);
  setFont(small);
  setMinimumWidth(settings.entity_window_width);
  // A click that goes to nothing that is typed into leaves the keys to commands.
  setFocusPolicy(Qt::ClickFocus);
  comment_->setReadOnly(true);
  comment_->setFocusPolicy(Qt::NoFocus);
  comment_->setMinimumHeight(settings.entity_comment_size);
  pairs_->setMinimumHeight(settings.entity_keypair_size);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->setSpacing(3);
  column->addLayout(classRow());
  column->addWidget(comment_, settings.entity_comment_size);
  column->addLayout(labelRow());
  column->addWidget(pairs_, 2 * settings.entity_keypair_size);
  column->addLayout(fieldRow());
  column->addLayout(flagGrid());
  column->addLayout(angleRow());
  buildLinks();
  column->addWidget(links_);
  refresh();
}

QToolButton* EntityView::button(const QString& text, const QString& hint) {
  auto* made = new QToolButton;
  made->setText(text);
  made->setToolTip(hint);
  made->setFocusPolicy(Qt::NoFocus);
  made->setFixedHeight(editor_.settings().entity_button_size + kButtonRoom);
  return made;
}

QBoxLayout* EntityView::classRow() {
  auto* row = new QHBoxLayout;
  make_->setFocusPolicy(Qt::NoFocus);
  make_->setToolTip("Makes an entity of this class from the selection");
  row->addWidget(classes_, 1);
  row->addWidget(make_);
  connect(classes_, &EntityClassBox::chosen, this, [this](int index) {
    panel().chooseClass(index);
    refresh();
  });
  connect(make_, &QPushButton::clicked, this, [this] {
    classes_->takePending();
    panel().makeButton();
  });
  return row;
}

QBoxLayout* EntityView::labelRow() {
  auto* row = new QHBoxLayout;
  row->addWidget(label_, 1);
  row->addWidget(all_);
  label_->setMinimumWidth(1);
  all_->setFocusPolicy(Qt::NoFocus);
  all_->setToolTip("Changes go to all entities of which something is selected");
  connect(all_, &QCheckBox::clicked, this, [this](bool on) {
    panel().setEditsAll(on);
    refresh();
  });
  return row;
}

QLineEdit* EntityView::field(void (EntityPanel::*typed)(std::string_view)) {
  auto* made = new QLineEdit;
  made->setMaximumWidth(editor_.settings().entity_field_size);
  made->setFocusPolicy(Qt::ClickFocus);
  connect(made, &QLineEdit::textEdited, this, [this, typed](const QString& text) {
    (panel().*typed)(GivenText(text));
    showFields();
  });
  connect(made, &QLineEdit::returnPressed, made, &QLineEdit::clearFocus);
  return made;
}

QBoxLayout* EntityView::fieldRow() {
  auto* row = new QHBoxLayout;
  key_ = field(&EntityPanel::setKeyField);
  value_ = field(&EntityPanel::setValueField);
  key_->setPlaceholderText("key");
  value_->setPlaceholderText("value");
  QToolButton* add = button("+", "Enters a pair");
  QToolButton* remove = button("-", "Deletes the key in the field");
  colour_ = button("", "Chooses \"_color\"");
  row->setSpacing(2);
  row->addWidget(key_, 1);
  row->addWidget(value_, 1);
  for (QToolButton* tool : {add, remove, colour_}) {
    tool->setFixedWidth(tool->height());
    row->addWidget(tool);
  }
  row->addStretch();
  connect(add, &QToolButton::clicked, this, [this] {
    panel().addPair();
    showFields();
  });
  connect(remove, &QToolButton::clicked, this, [this] { panel().deleteKey(); });
  connect(colour_, &QToolButton::clicked, this, [this] { panel().askColour(); });
  connect(pairs_, &EntityPairList::picked, this, &EntityView::showFields);
  return row;
}

QLayout* EntityView::flagGrid() {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(4);
  grid->setVerticalSpacing(0);
  for (int bit = 0; bit < EntityPanel::kFlags; ++bit) {
    auto* box = new QCheckBox;
    box->setFocusPolicy(Qt::NoFocus);
    box->setMinimumWidth(20);
    grid->addWidget(box, bit / 4, bit % 4);
    connect(box, &QCheckBox::clicked, this, [this, bit] {
      panel().toggleFlag(bit);
      showFlags();
    });
    flags_[static_cast<size_t>(bit)] = box;
  }
  return grid;
}

QBoxLayout* EntityView::angleRow() {
  auto* row = new QHBoxLayout;
  auto* grid = new QGridLayout;
  grid->setSpacing(2);
  constexpr int kInRow = 5;
  for (const char* text : kAngles) {
    QToolButton* tool = button(text, "Sets \"angle\"");
    tool->setCheckable(true);
    tool->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const int place = static_cast<int>(angles_.size());
    grid->addWidget(tool, place / kInRow, place % kInRow);
    angles_.push_back({AngleOf(text), tool});
    connect(tool, &QToolButton::clicked, this, [this, angle = AngleOf(text)] {
      panel().setAngle(angle);
      showAngle();
    });
  }
  row->addWidget(dial_);
  row->addLayout(grid, 1);
  connect(dial_, &EntityAngleDial::turned, this, [this](int degrees) { panel().setAngle(degrees); });
  return row;
}

void EntityView::buildLinks() {
  links_->setFocusPolicy(Qt::NoFocus);
  links_->setSelectionMode(QAbstractItemView::NoSelection);
  links_->setToolTip("A click selects the entity at the other end");
  links_->setFixedHeight(kLinkLines * (fontMetrics().height() + 2) + 4);
  connect(links_, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* item) { panel().followLink(links_->row(item)); });
}

void EntityView::showFields() {
  ShowText(*key_, panel().keyField());
  ShowText(*value_, panel().valueField());
}

void EntityView::showFlags() {
  const auto shown = panel().flags();
  for (size_t i = 0; i < shown.size(); ++i) {
    QCheckBox& box = *flags_[i];
    const EntityPanel::Flag& flag = shown[i];
    const bool differs = flag.state == EntityPanel::FlagState::Differs;
    box.setText(Plain(flag.label));
    box.setToolTip(ShownText(flag.label));
    box.setTristate(differs);
    box.setCheckState(differs                                    ? Qt::PartiallyChecked
                      : flag.state == EntityPanel::FlagState::On ? Qt::Checked
                                                                 : Qt::Unchecked);
  }
}

void EntityView::showAngle() {
  const std::optional<int> angle = panel().angle();
  dial_->show(angle);
  for (const AngleButton& tool : angles_) tool.button->setChecked(angle == tool.angle);
}

void EntityView::showLinks() {
  const std::vector<EntityPanel::Link> links = panel().links();
  links_->setVisible(!links.empty());
  const int count = static_cast<int>(links.size());
  while (links_->count() > count) delete links_->takeItem(links_->count() - 1);
  while (links_->count() < count) links_->addItem("");
  for (int i = 0; i < count; ++i) {
    const EntityPanel::Link& link = links[static_cast<size_t>(i)];
    links_->item(i)->setText((link.pointsTo ? QString::fromUtf8("→ ") : QString::fromUtf8("← ")) +
                             ShownText(link.text));
  }
}

void EntityView::showColour() {
  const std::optional<Colour> colour = panel().colour();
  QPixmap swatch(24, 24);
  swatch.setDevicePixelRatio(2);
  swatch.fill(colour ? QColor(colour->red, colour->green, colour->blue) : QColor(Qt::transparent));
  colour_->setIcon(swatch);
  colour_->setText(colour ? "" : "C");
  colour_->setToolButtonStyle(colour ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextOnly);
}

void EntityView::reloadClasses() {
  classes_->reload();
  refresh();
}

void EntityView::refresh() {
  const bool open = editor_.documents().currentMap() != nullptr;
  setEnabled(open);
  classes_->show(panel().classIndex(), ShownText(panel().classText()));
  const QString comment = ShownText(panel().comment()).trimmed();
  if (comment_->toPlainText() != comment) comment_->setPlainText(comment);
  label_->setText(ShownText(open ? panel().label() : ""));
  all_->setVisible(panel().canEditAll());
  all_->setChecked(panel().editsAll());
  pairs_->refresh();
  showFields();
  showFlags();
  showAngle();
  showLinks();
  showColour();
}

}  // namespace velk
