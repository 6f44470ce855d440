// The build window: what the compiler writes, and what a check of the map found. Its lines lead to what they
// name.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "build/build_tools.h"
#include "build/check_map.h"
#include "build/leak_watch.h"
#include "panels/panel.h"

namespace velk {

class BuildPanel : public Panel {
 public:
  enum class Page { Output, Check };

  BuildPanel(const PanelContext& context, BuildTools& tools);

  Page page() const { return page_; }
  void showPage(Page page);

  // The lines of the page shown.
  int lineCount() const;
  OutputLine lineAt(int line) const;
  bool isLink(int line) const;
  // "Full: succeeded, 12.5 s", "8 findings".
  std::string headline() const;

  // Starts a build of the map's file.
  void build(const std::string& name, const std::vector<Launch>& launches, const BuildMap& map);
  // Looks the current map over; how much was found.
  int check();
  // After an undo or redo, which makes entities anew: while findings are shown, the map is looked over again.
  void historyMoved();
  const std::vector<CheckFinding>& findings() const { return findings_; }
  // Mends what a line of the check found, in its own map, as a change of its own; false when it has no mend.
  bool mend(int line);

  // Selects what the line names and centres the views there.
  bool pick(int line) override;
  Menu contextMenu() override;
  // "page" with output or check, "mend" with a line's number, "stop", "clear", which empties the page shown.
  bool control(const std::string& name, const std::string& value) override;
  // The headline, then the lines of the page.
  std::vector<std::string> printed() override;

  // The plan views go there.
  std::function<void(const vec3&)> centreOn = [](const vec3&) {};
  // Leak points to be shown, and the file they are from.
  std::function<void(std::vector<vec3>, const std::string&)> showLeaks = [](std::vector<vec3>,
                                                                            const std::string&) {};
  // What it shows is out of date.
  std::function<void()> changed = [] {};

 private:
  void buildEnded();
  bool clearPage();
  bool follow(const MapPlace& place);
  Outcome goTo(map& m, const MapPlace& place);
  Outcome select(map& m, entity& e, brush* one);
  Outcome select(map& m, const CheckFinding& finding);
  map* builtMap();
  void showMap(const map& m);

  BuildTools& tools_;
  Page page_ = Page::Output;
  std::vector<CheckFinding> findings_;
  bool checked_ = false;
  const MapDocument* checkedMap_ = nullptr;  // only compared, since it may be closed
  LeakWatch leakWatch_;
};

}  // namespace velk
