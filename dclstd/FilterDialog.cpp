#include "dclstd/FilterDialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTableWidget>

#include "dclstd/EditValue.h"

FilterDialog::FilterDialog(QWidget* owner) : RowDialog(tr("Filter Editor"), owner) {
  table = new QTableWidget(0, 2, this);
  table->setObjectName(QStringLiteral("table"));
  table->setAccessibleName(tr("Filters"));
  table->setHorizontalHeaderLabels({tr("Name"), tr("Filter")});
  table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  table->verticalHeader()->hide();
  table->setTabKeyNavigation(false);
  table->setEditTriggers(QAbstractItemView::AllEditTriggers);
  table->installEventFilter(this);
  Follows(table);
  Button(remove, "remove", "&Delete", &FilterDialog::removeClick, "The row (Ctrl+Del)");
  Button(up, "up", "Move &Up", &FilterDialog::upClick);
  Button(down, "down", "Move Do&wn", &FilterDialog::downClick);
  OkButton(ok, "ok");
  CancelButton(cancel, "cancel");
  auto* box = new QVBoxLayout(this);
  box->addWidget(table, 1);
  box->addLayout(ButtonLine({ok, cancel}, {remove, up, down}));
  connect(table, &QTableWidget::cellChanged, this, [this] {
    changed_ = true;
    KeepEmptyRow();
    EnableButtons();
  });
  connect(table, &QTableWidget::currentCellChanged, this, &FilterDialog::EnableButtons);
  SetTabSequence();
  FormCreate();
  setSizeGripEnabled(true);
  resize(QSize(460, 280).expandedTo(minimumSizeHint()));
  SetFilter({});
}

QString FilterDialog::TextAt(int row, int column) const {
  const QTableWidgetItem* item = table->item(row, column);
  return item ? item->text() : QString();
}

void FilterDialog::SetRow(int row, const QString& name, const QString& pattern) {
  const QSignalBlocker quiet(table);
  table->setItem(row, 0, new QTableWidgetItem(name));
  table->setItem(row, 1, new QTableWidgetItem(pattern));
}

void FilterDialog::SetFilter(const QString& filter) {
  const QStringList parts = filter.isEmpty() ? QStringList() : filter.split(u'|');
  table->setRowCount(static_cast<int>((parts.size() + 1) / 2));
  for (int row = 0; row < table->rowCount(); ++row) SetRow(row, parts[2 * row], parts.value(2 * row + 1));
  changed_ = false;
  KeepEmptyRow();
  table->setCurrentCell(0, 0);
  EnableButtons();
}

// Where the next one is typed.
void FilterDialog::KeepEmptyRow() {
  const int last = table->rowCount() - 1;
  if (last >= 0 && TextAt(last, 0).isEmpty() && TextAt(last, 1).isEmpty()) return;
  table->setRowCount(last + 2);
  SetRow(last + 1, {}, {});
}

QString FilterDialog::Filter() const {
  QStringList parts;
  for (int row = 0; row < table->rowCount(); ++row)
    if (!TextAt(row, 0).isEmpty() || !TextAt(row, 1).isEmpty()) parts << TextAt(row, 0) << TextAt(row, 1);
  return parts.join(u'|');
}

void FilterDialog::EnableButtons() {
  const int row = table->currentRow(), count = table->rowCount() - 1;
  remove->setEnabled(row >= 0 && row < count);
  up->setEnabled(row > 0 && row < count);
  down->setEnabled(row >= 0 && row < count - 1);
}

void FilterDialog::removeClick() {
  table->removeRow(table->currentRow());
  changed_ = true;
  KeepEmptyRow();
  EnableButtons();
}

void FilterDialog::Move(int by) {
  const int row = table->currentRow();
  const QString name = TextAt(row, 0), pattern = TextAt(row, 1);
  SetRow(row, TextAt(row + by, 0), TextAt(row + by, 1));
  SetRow(row + by, name, pattern);
  changed_ = true;
  table->setCurrentCell(row + by, table->currentColumn());
}

bool FilterDialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return RowDialog::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  if (key->key() != Qt::Key_Delete || key->modifiers() != Qt::ControlModifier) return false;
  remove->click();
  return true;
}

bool EditFilter(QString& filter) {
  FilterDialog dialog(ApplicationOwner());
  dialog.SetFilter(filter);
  if (dialog.ShowModal() != mrOk || !dialog.Changed()) return false;
  filter = dialog.Filter();
  return true;
}
