#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <vector>

#include "panels/groups/group_panel.h"

namespace velk {

// The groups of the current map, a line each: a check box for visible, the colour, the text, how many
// brushes.
class GroupModel : public QAbstractListModel {
  Q_OBJECT
 public:
  static constexpr int kBrushesRole = Qt::UserRole;

  GroupModel(GroupPanel& panel, QObject* parent) : QAbstractListModel(parent), panel_(panel) {}

  // Takes over the groups as they are now.
  void refresh();

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
  QStringList mimeTypes() const override;
  bool dropMimeData(const QMimeData* dropped, Qt::DropAction action, int row, int column,
                    const QModelIndex& onto) override;

 private:
  GroupPanel& panel_;
  std::vector<GroupPanel::Line> lines_;
};

// The list of groups: a click makes a group current, a double click selects its brushes, F2 renames it, the
// right button opens the context menu; the selection can be dropped on a line.
class TVelkGroupListBox : public QListView {
  Q_OBJECT
 public:
  explicit TVelkGroupListBox(GroupPanel& panel, QWidget* parent = nullptr);

  // Shows the groups as they are now.
  void refresh();

 private:
  void openMenu(const QPoint& at);

  GroupPanel& panel_;
  GroupModel* groups_;
};

}  // namespace velk
