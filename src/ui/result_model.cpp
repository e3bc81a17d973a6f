#include "ui/result_model.h"

#include "ui/check_details.h"
#include "ui/marks.h"

namespace zorvik {

namespace {

// An index's internal id names its parent: 0 for groups, the group's row + 1 for checks, and
// the group's and check's rows, each + 1, packed above and below bit 16 for finding lines.
constexpr quintptr kCheckShift = 16;
constexpr quintptr kLowMask = (quintptr{1} << kCheckShift) - 1;

QString fromStd(const std::string& text) {
  return QString::fromLatin1(text.data(), text.size());
}

}  // namespace

ResultModel::ResultModel(QObject* parent) : QAbstractItemModel(parent) {}

void ResultModel::showTable(const CheckTable& table) {
  beginResetModel();
  table_ = table;
  groups_ = resultRows(table_);
  endResetModel();
}

void ResultModel::clear() {
  beginResetModel();
  table_ = CheckTable(0);
  groups_.clear();
  endResetModel();
}

void ResultModel::setShowDetails(bool show) {
  if (show == showDetails_) return;
  beginResetModel();
  showDetails_ = show;
  endResetModel();
}

int ResultModel::findingCount(const CheckRow& check) const {
  return showDetails_ ? static_cast<int>(check.findings.size()) : 0;
}

ResultModel::Position ResultModel::positionOf(const QModelIndex& index) const {
  Position pos;
  if (!index.isValid()) return pos;
  const quintptr id = index.internalId();
  if (id == 0) {
    pos.group = index.row();
  } else if (id <= kLowMask) {
    pos.group = static_cast<int>(id) - 1;
    pos.check = index.row();
  } else {
    pos.group = static_cast<int>(id >> kCheckShift) - 1;
    pos.check = static_cast<int>(id & kLowMask) - 1;
    pos.line = index.row();
  }
  return pos;
}

QModelIndex ResultModel::index(int row, int column, const QModelIndex& parent) const {
  if (!hasIndex(row, column, parent)) return {};
  const Position p = positionOf(parent);
  if (!parent.isValid()) return createIndex(row, column, quintptr{0});
  if (p.check < 0) return createIndex(row, column, static_cast<quintptr>(p.group + 1));
  return createIndex(
      row, column,
      (static_cast<quintptr>(p.group + 1) << kCheckShift) | static_cast<quintptr>(p.check + 1));
}

QModelIndex ResultModel::parent(const QModelIndex& child) const {
  const Position p = positionOf(child);
  if (p.group < 0 || p.check < 0) return {};
  if (p.line < 0) return createIndex(p.group, 0, quintptr{0});
  return createIndex(p.check, 0, static_cast<quintptr>(p.group + 1));
}

int ResultModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid() && parent.column() != 0) return 0;
  const Position p = positionOf(parent);
  if (!parent.isValid()) return static_cast<int>(groups_.size());
  if (p.check < 0) return static_cast<int>(groups_[p.group].checks.size());
  if (p.line < 0) return findingCount(groups_[p.group].checks[p.check]);
  return 0;
}

int ResultModel::columnCount(const QModelIndex&) const {
  return 2;
}

QVariant ResultModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const Position p = positionOf(index);
  const GroupRow& group = groups_[p.group];
  const CheckRow* check = p.check >= 0 ? &group.checks[p.check] : nullptr;

  if (role == KeyRole)
    return check ? QString::fromStdString(checkKey(group.group, check->row)) : QString();
  if (p.line >= 0) {
    if (role == Qt::DisplayRole && index.column() == 0) return fromStd(check->findings[p.line]);
    return {};
  }
  const CheckMark mark = check ? check->mark : group.mark;
  if (index.column() == 0) {
    if (role == Qt::DisplayRole) return fromStd(check ? check->text : group.text);
    if (role == Qt::DecorationRole) return markIcon(mark);
  } else if (role == Qt::DisplayRole) {
    return QString::fromLatin1(markText(mark));
  }
  return {};
}

QVariant ResultModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return section == 0 ? QStringLiteral("Check") : QStringLiteral("Result");
}

QString ResultModel::plainText() const {
  QString text;
  for (const GroupRow& group : groups_) {
    text += fromStd(group.text) + '\t' + QLatin1String(markText(group.mark)) + '\n';
    for (const CheckRow& check : group.checks) {
      text += QStringLiteral("    ") + fromStd(check.text) + '\t' +
              QLatin1String(markText(check.mark)) + '\n';
      for (int line = 0; line < findingCount(check); ++line)
        text += QStringLiteral("        ") + fromStd(check.findings[line]) + '\n';
    }
  }
  return text;
}

}  // namespace zorvik
