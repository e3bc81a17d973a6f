// The result grid's item model: the groups of a check table as top-level rows, their checks as
// children, and, while details are shown, a failed check's findings line by line under it.
//
// The model keeps its own copy of the table it shows, so a run that rewrites the shared tables
// never changes rows under a view. Column 0 is the row's text, column 1 its mark.
#pragma once

#include <QAbstractItemModel>
#include <QString>
#include <vector>

#include "checks/check_table.h"
#include "ui/result_rows.h"

namespace zorvik {

class ResultModel : public QAbstractItemModel {
  Q_OBJECT

 public:
  // The "group^check" key of check rows and of their finding lines (empty for group rows).
  static constexpr int KeyRole = Qt::UserRole + 1;

  explicit ResultModel(QObject* parent = nullptr);

  void showTable(const CheckTable& table);
  void clear();
  void setShowDetails(bool show);
  bool showDetails() const { return showDetails_; }
  // The table last shown (empty tables before any).
  const CheckTable& table() const { return table_; }
  // Every row's text, children indented under their parents, marks after a tab.
  QString plainText() const;

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& child) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

 private:
  // Where an index points: a group, one of its checks, or a finding line of that check.
  struct Position {
    int group = -1;
    int check = -1;
    int line = -1;
  };
  Position positionOf(const QModelIndex& index) const;
  int findingCount(const CheckRow& check) const;

  CheckTable table_{0};
  std::vector<GroupRow> groups_;
  bool showDetails_ = true;
};

}  // namespace zorvik
