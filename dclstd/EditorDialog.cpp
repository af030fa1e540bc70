#include "dclstd/EditorDialog.h"

#include <QtWidgets>

#include "vcl/ControlView.h"

EditorDialog::EditorDialog(const QString& caption, QSize clientSize, QWidget* parent, int previewWidth)
    : RowDialog(caption, parent), clientSize_(clientSize) {
  settings_ = new QFrame(this);
  settings_->setObjectName(QStringLiteral("settings"));
  settings_->setAutoFillBackground(true);
  settings_->setBackgroundRole(QPalette::Base);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(8);
  RowsInto(*grid);
  auto* settingsBox = new QVBoxLayout(settings_);
  settingsBox->setContentsMargins(16, 16, 16, 8);
  settingsBox->addLayout(grid);
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
  all->addWidget(settings_, 1);
  all->addWidget(right_);
}

// The view is gone before what it shows.
EditorDialog::~EditorDialog() { delete testView; }

void EditorDialog::SetPreview(QWidget* preview) { previewBox_->addWidget(preview); }

void EditorDialog::TakePreview(TControl* control, const char* hint) {
  preview_.reset(control);
  testView = new ControlView(control, this);
  testView->setObjectName(QStringLiteral("test"));
  testView->setToolTip(QString::fromLatin1(hint));
  OwnColors({testView});
}
void EditorDialog::FillPreview() {
  testView->SetFillView(true);
  SetPreview(testView);
}
void EditorDialog::ScrollPreview(Qt::Alignment place) {
  testView->SetPlace(place);
  QScrollArea* box = ScrollBoxOf(testView, this);
  box->setFocusPolicy(Qt::ClickFocus);  // no stop between the rows and the buttons
  SetPreview(box);
}

void EditorDialog::Buttons(NamedButton ok, NamedButton cancel) {
  OkButton(ok.button, ok.name);
  CancelButton(cancel.button, cancel.name);
  buttons_->addWidget(ok.button);
  buttons_->addWidget(cancel.button);
}
void EditorDialog::Buttons(NamedButton ok, NamedButton cancel, NamedButton reset) {
  Buttons(ok, cancel);
  ResetButton(reset.button, reset.name);
  buttons_->addWidget(reset.button);
}

void EditorDialog::AddBelowPreview(const std::vector<QWidget*>& beside) {
  auto* line = new QHBoxLayout;
  line->setSpacing(8);
  for (QWidget* widget : beside) line->addWidget(widget, 1);
  buttons_->addLayout(line);
}

void EditorDialog::Finish(bool fixed) {
  SetTabSequence();
  FormCreate();
  auto* all = static_cast<QHBoxLayout*>(layout());
  all->setStretch(0, fixed ? 1 : 0);
  all->setStretch(1, fixed ? 0 : 1);
  if (fixed) right_->setFixedWidth(right_->minimumWidth());
  // Remarks that wrap need more height the narrower they are.
  QSize size = clientSize_.expandedTo(minimumSizeHint());
  if (layout()->hasHeightForWidth())
    size.setHeight(std::max(size.height(), layout()->totalHeightForWidth(size.width())));
  if (fixed) return setFixedSize(size);
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
