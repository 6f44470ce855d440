#include "desktop/windows/build_window.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMenu>
#include <QScrollBar>
#include <QVBoxLayout>

#include "base/text.h"
#include "commands/building/profile_form.h"
#include "commands/dispatch.h"
#include "desktop/dialogs/shown_text.h"

namespace velk {
namespace {

constexpr std::chrono::milliseconds kDelay{80};
constexpr std::chrono::seconds kSecond{1};
constexpr int kGap = 4;  // pixels

int PageNumber(BuildPanel::Page page) { return static_cast<int>(page); }

}  // namespace

TBuildWindow::TBuildWindow(Editor& editor, QWidget* parent)
    : QDockWidget("Build", parent), editor_(editor), lines_(new BuildLines(editor.panels().build, this)) {
  setObjectName("BuildWindow");
  setWidget(buildContents());
  delay_.setSingleShot(true);
  delay_.setInterval(kDelay);
  connect(&delay_, &QTimer::timeout, this, &TBuildWindow::refresh);
  connect(&seconds_, &QTimer::timeout, this, &TBuildWindow::tick);
  connectContents();
  fillProfiles();
  refresh();
}

QPushButton* TBuildWindow::addButton(QWidget* row, const QString& label, const char* command) {
  auto* button = new QPushButton(label, row);
  button->setFocusPolicy(Qt::NoFocus);
  const Command* found = FindCommand(command);
  button->setToolTip(found->hint);
  connect(button, &QPushButton::clicked, this, [this, found] { RunCommand(editor_, *found); });
  row->layout()->addWidget(button);
  return button;
}

QWidget* TBuildWindow::buildButtons() {
  auto* row = new QWidget;
  auto* line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  profiles_ = new QComboBox(row);
  profiles_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  line->addWidget(profiles_);
  addButton(row, "Profile...", "CM_BUILD_PROFILE");
  start_ = addButton(row, "Build", "CM_BUILD_START");
  stop_ = addButton(row, "Stop", "CM_BUILD_STOP");
  play_ = addButton(row, "Play", "CM_PLAY");
  addButton(row, "Check Map", "CM_CHECK_MAP");
  mend_ = new QPushButton("Mend", row);
  mend_->setFocusPolicy(Qt::NoFocus);
  mend_->setToolTip("Mend what the line found, where there is one sure way");
  line->addWidget(mend_);
  headline_ = new QLabel(row);
  headline_->setTextFormat(Qt::PlainText);
  headline_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  headline_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  line->addWidget(headline_, 1);
  return row;
}

QWidget* TBuildWindow::buildContents() {
  auto* contents = new QWidget(this);
  auto* column = new QVBoxLayout(contents);
  column->setContentsMargins(kGap, kGap, kGap, kGap);
  column->setSpacing(kGap);
  column->addWidget(buildButtons());
  pages_ = new QTabBar(contents);
  pages_->setExpanding(false);
  pages_->addTab("Output");
  pages_->addTab("Check");
  pages_->setFocusPolicy(Qt::NoFocus);
  column->addWidget(pages_);
  list_ = new QListView(contents);
  list_->setModel(lines_);
  list_->setUniformItemSizes(true);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  list_->setContextMenuPolicy(Qt::CustomContextMenu);
  list_->setMinimumHeight(60);
  column->addWidget(list_, 1);
  return contents;
}

void TBuildWindow::connectContents() {
  BuildPanel& panel = editor_.panels().build;
  connect(mend_, &QPushButton::clicked, this, [this, &panel] { panel.mend(list_->currentIndex().row()); });
  connect(pages_, &QTabBar::currentChanged, this, [this, &panel](int page) {
    if (!filling_) panel.showPage(static_cast<BuildPanel::Page>(page));
  });
  connect(profiles_, &QComboBox::activated, this,
          [this](int number) { editor_.door().show(ChooseProfile(editor_, number)); });
  for (const auto chosen : {&QListView::clicked, &QListView::activated}) {
    connect(list_, chosen, this, [&panel](const QModelIndex& index) { panel.pick(index.row()); });
  }
  connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { refresh(); });
  connect(list_, &QListView::customContextMenuRequested, this, &TBuildWindow::showMenu);
  panel.changed = [this] {
    if (!delay_.isActive()) delay_.start();
  };
}

void TBuildWindow::showMenu(const QPoint& at) {
  QMenu menu;
  menu.addAction("Copy Lines", this,
                 [this] {
                   QStringList texts;
                   QModelIndexList rows = list_->selectionModel()->selectedRows();
                   std::ranges::sort(rows, {}, &QModelIndex::row);
                   for (const QModelIndex& row : rows) texts << row.data().toString();
                   QGuiApplication::clipboard()->setText(texts.join('\n'));
                 })
      ->setEnabled(list_->selectionModel()->hasSelection());
  for (const MenuItem& item : editor_.panels().build.contextMenu()) {
    menu.addAction(ShownText(item.label), this, item.run)->setEnabled(item.enabled);
  }
  menu.exec(list_->viewport()->mapToGlobal(at));
}

void TBuildWindow::fillProfiles() {
  const BuildProfiles profiles = LoadProfiles(editor_);
  QStringList names;
  for (const std::string& name : profiles.names()) names << ShownText(name);
  profiles_->clear();
  profiles_->addItems(names);
  profiles_->setCurrentIndex(profiles_->findText(ShownText(profiles.chosen)));
}

void TBuildWindow::follow() {
  fillProfiles();
  show();
  raise();
  refresh();
}

void TBuildWindow::tick() {
  const BuildJob& job = editor_.build().job();
  headline_->setText(ShownText(editor_.panels().build.headline()));
  if (!job.running()) return;
  editor_.door().show(Outcome::Said(
      Format("Building %s, %i s: %s", job.name().c_str(),
             static_cast<int>(std::chrono::duration_cast<std::chrono::seconds>(job.elapsed()).count()),
             job.lastLine().c_str())));
}

void TBuildWindow::refresh() {
  BuildPanel& panel = editor_.panels().build;
  const BuildJob& job = editor_.build().job();
  const QScrollBar* bar = list_->verticalScrollBar();
  const bool atEnd = bar->value() >= bar->maximum();
  filling_ = true;
  pages_->setCurrentIndex(PageNumber(panel.page()));
  filling_ = false;
  lines_->refresh(panel.page() == BuildPanel::Page::Output ? job.dropped() : 0);
  if (atEnd && panel.page() == BuildPanel::Page::Output) list_->scrollToBottom();
  if (!job.running()) fillProfiles();
  headline_->setText(ShownText(panel.headline()));
  start_->setEnabled(!job.running() && IsEnabled(editor_, *FindCommand("CM_BUILD_START")));
  play_->setEnabled(IsEnabled(editor_, *FindCommand("CM_PLAY")));
  stop_->setEnabled(job.running());
  const int row = list_->currentIndex().row();
  const bool mendable = panel.page() == BuildPanel::Page::Check && row >= 0 &&
                        row < static_cast<int>(panel.findings().size()) &&
                        panel.findings()[static_cast<size_t>(row)].mend != CheckFinding::Mend::None;
  mend_->setVisible(panel.page() == BuildPanel::Page::Check);
  mend_->setEnabled(mendable);
  if (job.running() != seconds_.isActive()) job.running() ? seconds_.start(kSecond) : seconds_.stop();
}

}  // namespace velk
