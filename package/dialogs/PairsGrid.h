// A grid of two columns of texts under a row of titles, made of one model whatever its length. Where it may
// be edited, Ins adds a row, Ctrl+Del removes one, and Ctrl with the arrows moves it.
#pragma once
#include <QAbstractTableModel>
#include <QTableView>

struct TTextPair {
  QString First, Second;
  bool operator==(const TTextPair&) const = default;
};

class PairsModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  PairsModel(bool editable, QObject* parent) : QAbstractTableModel(parent), editable_(editable) {}
  const QList<TTextPair>& Rows() const { return rows_; }
  void SetRows(const QList<TTextPair>& rows);
  void SetTitles(const QString& first, const QString& second);
  void SetRow(int row, const TTextPair& pair);
  void InsertRow(int row, const TTextPair& pair = {});
  void RemoveRow(int row);
  void Swap(int row, int other);

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
  }
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : 2; }
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  bool editable_;
  QList<TTextPair> rows_;
  QString titles_[2];
};

class PairsGrid : public QTableView {
  Q_OBJECT
 public:
  enum class Use { Edit, Choose };
  PairsGrid(Use use, const char* name, QWidget* parent);
  PairsModel& Pairs() const { return *pairs_; }
  const QList<TTextPair>& Rows() const { return pairs_->Rows(); }
  // With the row of titles.
  int RowCount() const { return pairs_->rowCount() + 1; }
  void SetRowCount(int count);

  // -1 for none.
  int CurrentRow() const;
  // The same where whole rows are chosen: the row that the keys start from need not be.
  int SelectedRow() const;
  void Select(int row);
  // Below the current row; the new one is edited.
  void AddRow();
  void RemoveRow();
  void MoveRow(int by);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  PairsModel* pairs_;
  Use use_;
};
