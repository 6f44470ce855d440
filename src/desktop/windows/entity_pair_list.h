#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <QStyledItemDelegate>
#include <vector>

#include "panels/entities/entity_panel.h"

namespace velk {

// The lines of the list of pairs.
class EntityPairModel : public QAbstractListModel {
  Q_OBJECT
 public:
  using QAbstractListModel::QAbstractListModel;

  // Takes over the pairs; nothing happens when they are those shown.
  void show(const std::vector<SharedPair>& pairs);
  const SharedPair& at(int row) const { return pairs_[static_cast<size_t>(row)]; }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  std::vector<SharedPair> pairs_;
};

// Edits a line in place: the key and the value beside each other.
class EntityPairDelegate : public QStyledItemDelegate {
  Q_OBJECT
 public:
  EntityPairDelegate(EntityPanel& panel, const EntityPairModel& model, QObject* parent)
      : QStyledItemDelegate(parent), panel_(panel), model_(model) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void finish(QWidget* editor, bool take);

  EntityPanel& panel_;
  const EntityPairModel& model_;
};

// The list of pairs: a click picks, a double click opens the dialog, F2 edits in place, the right button
// opens the context menu.
class EntityPairList : public QListView {
  Q_OBJECT
 public:
  explicit EntityPairList(EntityPanel& panel, QWidget* parent = nullptr);

  // Shows the pairs as they are now.
  void refresh();

 Q_SIGNALS:
  // What the fields show may be another pair, or none.
  void picked();

 private:
  void openMenu(const QPoint& at);

  EntityPanel& panel_;
  EntityPairModel* pairs_;
};

}  // namespace velk
