#include "dclstd/RowDialog.h"

#include <QGridLayout>
#include <QKeyEvent>

#include "dclstd/ColorComboBox.h"
#include "dclstd/OneShotComboBox.h"
#include "dclstd/SpinEdit.h"
#include "designintf/CustomColors.h"
#include "designintf/IdeTheme.h"
#include "rtl/Class.h"
#include "rtl/Persistent.h"
#include "rtl/PropAccess.h"

namespace {
void SetName(QWidget& widget, const char* name, const char* hint) {
  widget.setObjectName(QString::fromLatin1(name));
  widget.setToolTip(QString::fromLatin1(hint));
}

// What the last name of a path is a property of.
TPersistent* OwnerOf(TPersistent* value, QList<QByteArray> path) {
  path.removeLast();
  for (const QByteArray& part : path) value = GetObjectProp(*value, value->ClassType().GetProp(part));
  return value;
}
}  // namespace

// Destroyed on the screen, a field loses the focus and reports what was typed in it.
RowDialog::~RowDialog() {
  Retire();
  hide();
}

bool RowDialog::NeedTheme(const QWidget& control) const {
  return std::find(own_.begin(), own_.end(), &control) == own_.end();
}

void RowDialog::FormCreate() {
  const auto combos = findChildren<ColorComboBox*>();
  ShareCustomColors({combos.begin(), combos.end()});
  activated = false;
  ApplyIDETheme(*this, [this](const QWidget& control) { return NeedTheme(control); });
}

void RowDialog::FormClose() {
  if (const auto* combo = findChild<ColorComboBox*>()) SaveIDECustomColors(combo->CustomColors());
}

void RowDialog::resetClick() {
  value_->Assign(value_->ClassType().NewPersistent().get());
  SetLabels();
}

void RowDialog::AddRow(QWidget& control, const char* name, const char* property, const char* text,
                       const char* hint) {
  SetName(control, name, hint);
  order_.push_back(&control);
  const RowKind& kind = RowKindOf(control);
  RowState& row = rows_.emplace_back(RowState{&control, nullptr, {}, {}});
  if (*property) {
    const QList<QByteArray> path = QByteArray(property).split('.');
    row.of = OwnerOf(value_, path);
    row.property.Info = &row.of->ClassType().GetProp(path.last());
    row.changed = [this, &control] { Apply(&control); };
    kind.Prepare(control, *row.property.Info->PropType);
  }
  kind.Watch(control, [this, &row] {
    if (row.changed) Guarded(row.changed);
  });
  if (auto* box = qobject_cast<QCheckBox*>(&control)) {
    box->setText(QString::fromLatin1(text));
    return Wide({box});
  }
  auto* label = new QLabel(QString::fromLatin1(text), this);
  label->setBuddy(&control);
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  const int place = grid_->rowCount();
  grid_->addWidget(label, place, 0);
  grid_->addWidget(&control, place, 1);
  grid_->setColumnStretch(1, 1);
}

void RowDialog::AddColorButton(QToolButton*& button, const QWidget& control, const char* name,
                               const char* hint) {
  button = NewColorButton(name, this);
  SetName(*button, name, hint);
  order_.push_back(button);
  int row, column, rows, columns;
  grid_->getItemPosition(grid_->indexOf(&control), &row, &column, &rows, &columns);
  grid_->addWidget(button, row, column + 1);
}

QLayout* RowDialog::ButtonLine(const std::vector<QPushButton*>& ends, const std::vector<QPushButton*>& left) {
  auto* line = new QHBoxLayout;
  for (QPushButton* button : left) line->addWidget(button);
  line->addStretch(1);
  for (QPushButton* button : ends) line->addWidget(button);
  return line;
}

void RowDialog::Wide(const std::vector<QWidget*>& beside) {
  auto* box = new QHBoxLayout;
  box->setSpacing(8);
  for (QWidget* widget : beside) box->addWidget(widget);
  // Over the column of buttons, too, where there is one.
  grid_->addLayout(box, grid_->rowCount(), 1, 1, grid_->columnCount() > 2 ? 2 : 1);
}

void RowDialog::PutBeside(QWidget& control, QWidget& other) {
  const auto lineOf = [this](QWidget& widget) -> QBoxLayout* {
    for (int i = 0; i < grid_->count(); ++i) {
      QLayout* line = grid_->itemAt(i)->layout();
      if (line && line->indexOf(&widget) >= 0) return static_cast<QBoxLayout*>(line);
    }
    return nullptr;
  };
  QBoxLayout* const line = lineOf(other);
  delete lineOf(control);
  line->addWidget(&control);
  for (int i = 0; i < line->count(); ++i) line->setStretch(i, 1);
}

void RowDialog::Note(const char* text, const char* name) {
  auto* note = new QLabel(QString::fromLatin1(text), this);
  note->setObjectName(QString::fromLatin1(name));
  note->setForegroundRole(QPalette::PlaceholderText);
  note->setWordWrap(true);
  Wide({note});
}

void RowDialog::SetItems(QComboBox& combo, const QStringList& texts) {
  const QSignalBlocker quiet(&combo);
  combo.addItems(texts);
  if (qobject_cast<OneShotComboBox*>(&combo)) combo.setCurrentIndex(-1);
}

QStringList RowDialog::NamesOf(const TTypeInfo& enumeration) {
  QStringList names;
  for (const QByteArray& name : enumeration.Elements) names << QString::fromLatin1(name);
  return names;
}

void RowDialog::FinishBeside(QLayout* content, const std::vector<QPushButton*>& buttons,
                             const std::vector<QPushButton*>& ends, QSize size) {
  auto* column = new QVBoxLayout;
  column->setSpacing(8);
  for (QPushButton* button : buttons) column->addWidget(button);
  column->addStretch(1);
  for (QPushButton* button : ends) column->addWidget(button);
  auto* all = new QHBoxLayout(this);
  all->addLayout(content, 1);
  all->addLayout(column);
  SetTabSequence();
  FormCreate();
  setSizeGripEnabled(true);
  resize(size.expandedTo(minimumSizeHint()));
}

void RowDialog::ShowRow(QWidget* control, bool visible) {
  control->setVisible(visible);
  for (QLabel* label : findChildren<QLabel*>())
    if (label->buddy() == control) label->setVisible(visible);
}

void RowDialog::keyPressEvent(QKeyEvent* event) {
  const bool confirms = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (confirms && !ReturnConfirms()) return event->accept();
  ModalDialog::keyPressEvent(event);
}

RowDialog::RowState& RowDialog::StateOf(const QWidget* control) {
  return *std::find_if(rows_.begin(), rows_.end(),
                       [&](const RowState& row) { return row.control == control; });
}

void RowDialog::Write(const QWidget* control) {
  const RowState& row = StateOf(control);
  RowKindOf(*control).Write(*control, *row.of, row.property);
}

void RowDialog::Apply(const QWidget* control) {
  Write(control);
  if (activated) SetLabels();
}

void RowDialog::LoadControls() {
  for (const RowState& row : rows_)
    if (row.property.Info) RowKindOf(*row.control).Load(*row.control, *row.of, row.property);
}

QPushButton* RowDialog::NewButton(const char* name, const char* text, const char* hint) {
  auto* button = new QPushButton(QString::fromLatin1(text), this);
  SetName(*button, name, hint);
  button->setAutoDefault(false);
  order_.push_back(button);
  return button;
}

void RowDialog::OnClick(QPushButton* button, std::function<void()> handler) {
  connect(button, &QPushButton::clicked, this, [this, handler = std::move(handler)] {
    // A shortcut leaves the focus in the field: what was typed there is of what is shown before the click.
    if (auto* typed = qobject_cast<SpinEdit*>(focusWidget())) typed->EndTyping();
    Guarded(handler);
  });
}
void RowDialog::OnClick(QToolButton* button, std::function<void()> handler) {
  connect(button, &QToolButton::clicked, this, [this, handler = std::move(handler)] { Guarded(handler); });
}

void RowDialog::OkButton(QPushButton*& button, const char* name, const char* text) {
  button = NewButton(name, text, "");
  button->setDefault(true);
  connect(button, &QPushButton::clicked, this, &QDialog::accept);
}
void RowDialog::CancelButton(QPushButton*& button, const char* name, const char* text) {
  button = NewButton(name, text, "");
  connect(button, &QPushButton::clicked, this, &QDialog::reject);
}
void RowDialog::ResetButton(QPushButton*& button, const char* name, const char* text) {
  Button(button, name, text, &RowDialog::resetClick);
}

void RowDialog::SetTabSequence() {
  for (std::size_t i = 1; i < order_.size(); ++i) setTabOrder(order_[i - 1], order_[i]);
}
