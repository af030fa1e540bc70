// The lines of the date list dialog: date ";" time ";" description, as the person's country writes dates and
// times. What nobody changed of a line keeps its exact value, and is written only when it is to be seen.
#pragma once
#include <QAbstractTableModel>

#include "library/values/DateList.h"
#include "rtl/DateText.h"

struct TVRXDateLine {
  QString Date, Time, Description;
  bool operator==(const TVRXDateLine&) const = default;
};
// At the first two ";": what is behind them is the description, with all others.
TVRXDateLine SplitDateLine(const QString& line);
QString JoinDateLine(const TVRXDateLine& line);

class DateLines : public QAbstractTableModel {
  Q_OBJECT
 public:
  using QAbstractTableModel::QAbstractTableModel;
  void SetEntries(const QList<TVRXDateEntry>& entries);
  // Throws EConvertError when what stands in the line is no date or no time.
  TVRXDateEntry Entry(int row) const;
  TVRXDateLine Line(int row) const;

  void Append(const TVRXDateLine& line);
  void Remove(int row);
  void SetDate(int row, const QString& text);
  void SetTime(int row, const QString& text);
  void SetDescription(int row, const QString& text);

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
  }
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : 3; }
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  // Null texts are those of the entry.
  struct TRow {
    TVRXDateEntry entry;
    QString date{}, time{};
  };
  void Tell(int row, int column);
  QList<TRow> rows_;
};
