// The lines of the build window as a model for a list, which asks only for those in sight.
#pragma once

#include <QAbstractListModel>

#include "panels/build/build_panel.h"

namespace velk {

class BuildLines : public QAbstractListModel {
  Q_OBJECT
 public:
  explicit BuildLines(BuildPanel& panel, QObject* parent = nullptr)
      : QAbstractListModel(parent), panel_(panel) {}

  // Takes over what was written since.
  void refresh(size_t dropped);

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : count_; }
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  BuildPanel& panel_;
  int count_ = 0;
  size_t dropped_ = 0;
  BuildPanel::Page page_ = BuildPanel::Page::Output;
};

}  // namespace velk
