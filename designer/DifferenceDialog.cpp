#include "designer/DifferenceDialog.h"

#include <QtWidgets>

#include "ide/LineDiff.h"

namespace {
using Kind = DiffRow::Kind;

constexpr int Context = 3;
constexpr int LongestLine = 400;  // characters; nobody reads the digits of a picture

// Readable on both themes: the colour of the page with some of the mark's.
QColor Tinted(const QPalette& palette, const QColor& mark) {
  const QColor page = palette.color(QPalette::Base);
  const auto mix = [](int a, int b) { return (a * 3 + b) / 4; };
  return {mix(page.red(), mark.red()), mix(page.green(), mark.green()), mix(page.blue(), mark.blue())};
}

// Fills one side; both sides have the same number of lines.
class Page {
 public:
  Page(QPlainTextEdit* edit, const QStringList& lines, char sign)
      : edit_(edit),
        cursor_(edit->document()),
        lines_(lines),
        sign_(sign),
        digits_(QString::number(lines.size()).size()) {
    cursor_.beginEditBlock();
  }
  ~Page() { cursor_.endEditBlock(); }

  void Add(const DiffRow& row, int line) {
    QString text;
    QColor back;
    if (row.kind == Kind::Gap) {
      text =
          QString(digits_, u' ') + QStringLiteral("   ") + QObject::tr("... %1 equal lines").arg(row.count);
      back = edit_->palette().color(QPalette::AlternateBase);
    } else if (line < 0) {
      back = edit_->palette().color(QPalette::AlternateBase);
    } else {
      const bool same = row.kind == Kind::Same;
      text =
          QStringLiteral("%1 %2 %3")
              .arg(line + 1, static_cast<int>(digits_))
              .arg(same ? u' ' : QChar::fromLatin1(sign_))
              .arg(lines_[line].size() > LongestLine ? lines_[line].first(LongestLine) + u'…' : lines_[line]);
      if (!same) back = Tinted(edit_->palette(), QColor(sign_ == '-' ? Qt::red : Qt::darkGreen));
    }
    if (!first_) cursor_.insertBlock();
    first_ = false;
    QTextBlockFormat block;
    if (back.isValid()) block.setBackground(back);
    cursor_.setBlockFormat(block);
    cursor_.insertText(text);
  }

 private:
  QPlainTextEdit* edit_;
  QTextCursor cursor_;
  const QStringList& lines_;
  char sign_;
  qsizetype digits_;
  bool first_ = true;
};
}  // namespace

QPlainTextEdit* DifferenceDialog::MakeSide(const char* name, const QString& accessibleName) {
  auto* edit = new QPlainTextEdit;
  edit->setObjectName(QLatin1StringView(name));
  edit->setAccessibleName(accessibleName);
  edit->setReadOnly(true);
  edit->setLineWrapMode(QPlainTextEdit::NoWrap);
  edit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  edit->setTabChangesFocus(true);
  return edit;
}

DifferenceDialog::DifferenceDialog(const QString& fileName, const QByteArray& onDisk, const QByteArray& here,
                                   QWidget* parent)
    : QDialog(parent) {
  const QString file = QFileInfo(fileName).fileName();
  setObjectName(QStringLiteral("differenceDialog"));
  setWindowTitle(tr("%1: two versions").arg(file));
  left_ = MakeSide("onDisk", tr("The file on disk"));
  right_ = MakeSide("here", tr("In the designer"));

  const QStringList theirs = LinesToRead(onDisk, fileName), ours = LinesToRead(here, fileName);
  const std::vector<DiffRow> rows = FoldSameLines(CompareLines(theirs, ours), Context);
  {
    Page leftPage(left_, theirs, '-'), rightPage(right_, ours, '+');
    for (const DiffRow& row : rows) {
      leftPage.Add(row, row.left);
      rightPage.Add(row, row.right);
    }
  }
  for (QPlainTextEdit* side : {left_, right_}) side->moveCursor(QTextCursor::Start);
  // Both sides show the same rows.
  for (const auto bar : {&QPlainTextEdit::verticalScrollBar, &QPlainTextEdit::horizontalScrollBar}) {
    connect((left_->*bar)(), &QScrollBar::valueChanged, (right_->*bar)(), &QScrollBar::setValue);
    connect((right_->*bar)(), &QScrollBar::valueChanged, (left_->*bar)(), &QScrollBar::setValue);
  }

  auto* grid = new QGridLayout;
  grid->addWidget(new QLabel(tr("The file on disk")), 0, 0);
  grid->addWidget(new QLabel(tr("In the designer")), 0, 1);
  grid->addWidget(left_, 1, 0);
  grid->addWidget(right_, 1, 1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
  const auto choice = [&](const QString& text, const QString& hint, const char* name, TFileAnswer answer) {
    QPushButton* button = buttons->addButton(text, QDialogButtonBox::ActionRole);
    button->setObjectName(QLatin1StringView(name));
    button->setToolTip(hint);
    connect(button, &QPushButton::clicked, this, [this, answer] {
      answer_ = answer;
      accept();
    });
  };
  choice(tr("&Reload"), tr("Takes the file on disk; the changes made here are lost."), "reload",
         TFileAnswer::Reload);
  choice(tr("&Overwrite"), tr("Saves what is in the designer; what is on disk is lost."), "overwrite",
         TFileAnswer::Overwrite);
  // Return must not decide between two people's work.
  buttons->button(QDialogButtonBox::Cancel)->setDefault(true);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* all = new QVBoxLayout(this);
  all->addLayout(grid, 1);
  all->addWidget(buttons);
  resize(960, 560);
}

TFileAnswer DifferenceDialog::Ask() {
  answer_ = TFileAnswer::Cancel;
  exec();
  return answer_;
}
