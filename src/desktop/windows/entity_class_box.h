#pragma once

#include <QAbstractListModel>
#include <QComboBox>

#include "entities/entity_class.h"

namespace velk {

// The entity classes in their order: name, colour, and whether a class is a point.
class EntityClassModel : public QAbstractListModel {
  Q_OBJECT
 public:
  // The list must outlive the model.
  EntityClassModel(const EntityClassList& classes, QObject* parent)
      : QAbstractListModel(parent), classes_(classes) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  // The classes were read anew.
  void reload();

 private:
  const EntityClassList& classes_;
};

// The class chooser: its list narrows as one types.
class EntityClassBox : public QComboBox {
  Q_OBJECT
 public:
  explicit EntityClassBox(const EntityClassList& classes, QWidget* parent = nullptr);

  // What is chosen, and the text shown with it, which may be no class's name.
  void show(int index, const QString& text);
  void reload();
  // Takes what was typed but not entered yet.
  void takePending();

 Q_SIGNALS:
  void chosen(int index);

 protected:
  void wheelEvent(QWheelEvent* event) override;

 private:
  void takeTyped();
  void choose(int index);

  EntityClassModel* model_;
  QString shown_;
};

}  // namespace velk
