#include "desktop/frame/map_tabs.h"

#include "desktop/dialogs/shown_text.h"
#include "documents/opening.h"

namespace velk {

MapTabs::MapTabs(Editor& editor, QWidget* parent) : QTabBar(parent), editor_(editor) {
  setExpanding(false);
  setDrawBase(false);
  // Names stay whole; what has no room is reached by the arrows. Elided, short ones would lose all letters.
  setElideMode(Qt::ElideNone);
  setUsesScrollButtons(true);
  setFocusPolicy(Qt::NoFocus);
  // The room of a tab is kept without maps, too: else opening the first one would shift every window.
  addTab(QStringLiteral("map"));
  setMinimumHeight(sizeHint().height());
  removeTab(0);
  connect(this, &QTabBar::currentChanged, this, [this](int index) {
    if (refreshing_ || index < 0) return;
    editor_.door().perform({.name = "Map"}, [&] { return SwitchTo(editor_.documents(), index); });
    refresh();
  });
}

void MapTabs::refresh() {
  refreshing_ = true;
  while (count() > editor_.documents().count()) removeTab(count() - 1);
  while (count() < editor_.documents().count()) addTab(QString());
  for (int i = 0; i < count(); ++i) {
    MapDocument& open = *editor_.documents().at(i);
    const std::string& path = open.model.name;
    // A single ampersand would mark a letter as the tab's key.
    setTabText(i, ShownText(MarkedName(open, FileNamePart(path))).replace('&', QLatin1String("&&")));
    setTabToolTip(i, ShownText(path));
  }
  setCurrentIndex(editor_.documents().currentIndex());
  refreshing_ = false;
}

}  // namespace velk
