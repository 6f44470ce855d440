#include "desktop/frame/bars.h"

#include <QAbstractItemView>
#include <QProxyStyle>
#include <QScreen>
#include <QToolButton>
#include <algorithm>

#include "base/text.h"
#include "commands/dispatch.h"
#include "desktop/dialogs/shown_text.h"
#include "desktop/frame/command_icons.h"

namespace velk {
namespace {

// Of the screen's height, the opened list's share.
constexpr double kListShare = 0.5 * 1.75;

// Opens a list with a scroll bar, in all styles. A style sheet would not follow changes of the palette.
class ListStyle : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override {
    return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, answer);
  }
};

}  // namespace

TextureList::TextureList(Editor& editor) : editor_(editor) {
  setFixedWidth(editor.settings().texture_list_width);
  // Keys stay the editor's: the list takes them only while it is open.
  setFocusPolicy(Qt::NoFocus);
  setToolTip(tr("Current texture"));
  setStatusTip(toolTip());
  auto* style = new ListStyle;
  style->setParent(this);
  setStyle(style);
  view()->setTextElideMode(Qt::ElideNone);
  connect(this, &QComboBox::activated, this,
          [this](int index) { ChooseTexture(editor_, names_[static_cast<size_t>(index)]); });
  refresh();
}

void TextureList::refresh() {
  std::vector<std::string> names = TextureListNames(editor_);
  if (names != names_) {
    names_ = std::move(names);
    QStringList items;
    for (const std::string& name : names_) items << ShownText(name);
    clear();
    addItems(items);
    const int row = std::max(view()->sizeHintForRow(0), 1);
    setMaxVisibleItems(std::max(static_cast<int>(screen()->size().height() * kListShare) / row, 1));
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + view()->autoScrollMargin() * 2);
  }
  const auto current = std::find_if(
      names_.begin(), names_.end(),
      [&name = editor_.texture().current().name](const std::string& n) { return EqualNoCase(n, name); });
  setCurrentIndex(current == names_.end() ? -1 : static_cast<int>(current - names_.begin()));
}

TVelkControlBar::TVelkControlBar(int number, const ButtonBar& gadgets, Editor& editor) : editor_(editor) {
  setWindowTitle(QStringLiteral("Velk Bar %1").arg(number));
  setObjectName(QStringLiteral("velkBar%1").arg(number));
  setAllowedAreas(Qt::AllToolBarAreas);
  QFont font(ShownText(editor.settings().velk_font));
  font.setPixelSize(editor.settings().velk_font_size);
  setFont(font);
  setMovable(true);
  setFloatable(true);
  for (const BarGadget& gadget : gadgets) {
    switch (gadget.kind) {
      case BarGadget::Kind::Button:
        addButton(*gadget.command);
        break;
      case BarGadget::Kind::Separator:
        addSeparator();
        break;
      case BarGadget::Kind::TextureList:
        lists_.push_back(new TextureList(editor_));
        addWidget(lists_.back());
        break;
    }
  }
  connect(this, &QToolBar::orientationChanged, this, &TVelkControlBar::fitOrientation);
  fitOrientation();
}

// A list does not widen an upright bar. The arrow is on the button for what does not fit; the style's own is
// black in every palette.
void TVelkControlBar::fitOrientation() {
  const bool upright = orientation() == Qt::Vertical;
  for (TextureList* list : lists_) {
    list->setFixedWidth(upright ? iconSize().width() * 2 : editor_.settings().texture_list_width);
  }
  auto* rest = findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
  if (rest) rest->setIcon(CommandIcon(upright ? "moredown" : "more"));
}

void TVelkControlBar::addButton(const Command& command) {
  QAction* button = addAction(CommandIcon(command.name), ShownText(PlainLabel(command)));
  button->setToolTip(ShownText(ButtonTip(command)));
  button->setStatusTip(QString::fromLatin1(command.hint));
  button->setCheckable(command.checked != nullptr);
  connect(button, &QAction::triggered, this, [this, &command] {
    RunCommand(editor_, command);
    commandsChanged();
  });
  buttons_.push_back({button, &command});
}

void TVelkControlBar::commandsChanged() {
  for (const auto& [action, command] : buttons_) {
    action->setEnabled(IsEnabled(editor_, *command));
    if (action->isCheckable()) action->setChecked(IsChecked(editor_, *command));
  }
}

void TVelkControlBar::texturesChanged() {
  for (TextureList* list : lists_) list->refresh();
}

std::vector<TVelkControlBar*> BuildBars(QMainWindow& frame, Editor& editor) {
  std::vector<TVelkControlBar*> bars;
  std::vector<ButtonBar> read;
  const auto load = [&] { read = LoadButtonBars(editor.place().home); };
  // Without its bars the editor is of use yet.
  if (const auto error = editor.door().trapped(load)) editor.services().tell("Velk - Button Bars", *error);
  for (const ButtonBar& gadgets : read) {
    if (!bars.empty()) frame.addToolBarBreak();
    bars.push_back(new TVelkControlBar(static_cast<int>(bars.size()) + 1, gadgets, editor));
    frame.addToolBar(bars.back());
    bars.back()->commandsChanged();
  }
  return bars;
}

}  // namespace velk
