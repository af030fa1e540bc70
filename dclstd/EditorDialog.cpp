#include "dclstd/EditorDialog.h"

#include <QtWidgets>

#include "vcl/ControlView.h"

EditorDialog::EditorDialog(const QString& caption, QSize clientSize, QWidget* parent, int previewWidth)
    : ModalDialog(caption, parent), clientSize_(clientSize) {
  auto* settings = new QFrame(this);
  settings->setObjectName(QStringLiteral("settings"));
  settings->setAutoFillBackground(true);
  settings->setBackgroundRole(QPalette::Base);
  grid_ = new QGridLayout;
  grid_->setHorizontalSpacing(8);
  grid_->setVerticalSpacing(8);
  auto* settingsBox = new QVBoxLayout(settings);
  settingsBox->setContentsMargins(16, 16, 16, 8);
  settingsBox->addLayout(grid_);
  settingsBox->addStretch(1);

  right_ = new QWidget(this);
  right_->setMinimumWidth(previewWidth);
  auto* rightBox = new QVBoxLayout(right_);
  rightBox->setContentsMargins(12, 16, 12, 12);
  rightBox->setSpacing(8);
  auto* quiet = new QFrame(right_);
  quiet->setObjectName(QStringLiteral("previewPanel"));
  quiet->setFrameShape(QFrame::StyledPanel);
  previewBox_ = new QVBoxLayout(quiet);
  previewBox_->setContentsMargins(8, 8, 8, 8);
  rightBox->addWidget(quiet, 1);
  buttons_ = new QVBoxLayout;
  buttons_->setSpacing(8);
  rightBox->addLayout(buttons_);

  auto* all = new QHBoxLayout(this);
  all->setContentsMargins(0, 0, 0, 0);
  all->setSpacing(0);
  all->addWidget(settings, 1);
  all->addWidget(right_);
}

void EditorDialog::AddRow(const QString& text, QWidget* control, QWidget* button) {
  const int row = grid_->rowCount();
  auto* label = new QLabel(text, this);
  label->setBuddy(control);
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  grid_->addWidget(label, row, 0);
  grid_->addWidget(control, row, 1);
  if (button) grid_->addWidget(button, row, 2);
  grid_->setColumnStretch(1, 1);
}

void EditorDialog::AddWide(QWidget* widget) {
  // Over the column of buttons, too, where there is one.
  grid_->addWidget(widget, grid_->rowCount(), 1, 1, grid_->columnCount() > 2 ? 2 : 1);
}

void EditorDialog::SetPreview(QWidget* preview) { previewBox_->addWidget(preview); }

void EditorDialog::SetPreview(ControlView* preview, Qt::Alignment place) {
  preview->SetPlace(place);
  SetPreview(ScrollBoxOf(preview, this));
}

QPushButton* EditorDialog::AddButton(const QString& text) {
  auto* button = new QPushButton(text, this);
  button->setAutoDefault(false);
  buttons_->addWidget(button);
  return button;
}

void EditorDialog::AddOk(QPushButton* button) {
  button->setDefault(true);
  connect(button, &QPushButton::clicked, this, &QDialog::accept);
}
void EditorDialog::AddCancel(QPushButton* button) {
  connect(button, &QPushButton::clicked, this, &QDialog::reject);
}

void EditorDialog::SetTabSequence(const std::vector<QWidget*>& widgets) {
  for (std::size_t i = 1; i < widgets.size(); ++i) setTabOrder(widgets[i - 1], widgets[i]);
}

void EditorDialog::AddBelowPreview(QWidget* widget) { buttons_->addWidget(widget); }

void EditorDialog::FinishLayout(bool fixed) {
  const QSize size = clientSize_.expandedTo(minimumSizeHint());
  auto* all = static_cast<QHBoxLayout*>(layout());
  all->setStretch(0, fixed ? 1 : 0);
  all->setStretch(1, fixed ? 0 : 1);
  if (fixed) {
    right_->setFixedWidth(right_->minimumWidth());
    setFixedSize(size);
    return;
  }
  setMinimumSize(size);
  setSizeGripEnabled(true);
  resize(size);
}

QScrollArea* ScrollBoxOf(QWidget* widget, QWidget* parent) {
  auto* box = new QScrollArea(parent);
  box->setFrameShape(QFrame::NoFrame);
  box->setWidgetResizable(true);
  box->setWidget(widget);
  // Scrolled contents have a ground of their own otherwise.
  widget->setAutoFillBackground(false);
  box->viewport()->setAutoFillBackground(false);
  return box;
}
