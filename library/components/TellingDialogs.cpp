#include "library/components/TellingDialogs.h"

#include <QtWidgets>

const TClass& TVRXAboutDlg::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXAboutDlg>("TVRXAboutDlg", TVRXBaseDialog::StaticClass())
          .Published(Comment)
          .Doc(QStringLiteral("What else there is to say of the program."))
          .Published(Copyright)
          .Published(ProgramName)
          .Doc(QStringLiteral("The name, in large letters."))
          .Published(Version)
          .ClassDoc(
              QStringLiteral("Tells the name, the version and the maker of the program."),
              "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 pen accent 2.2 path 12 13 12 17.5 path "
              "12 10.4 12 10.6"));
  return cls;
}

const TClass& TVRXTipDlg::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXTipDlg>("TVRXTipDlg", TVRXBaseDialog::StaticClass())
          .Published(ShowAtStart)
          .Doc(QStringLiteral("Whether the person wants tips when the program starts."))
          .Published(TipIndex)
          .Doc(QStringLiteral(
              "The tip that comes first; afterwards the one that follows the last that was read."))
          .Published(Tips)
          .Doc(QStringLiteral("The tips, a line each."))
          .ClassDoc(
              QStringLiteral("Shows the tip of the day."),
              "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 pen accent 1.8 brush none oval 9 9.5 6 "
              "5.5 path 10.8 17 13.2 17 path 12 15 12 16.5"));
  return cls;
}

const TClass& TVRXMessageBoxDlg::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXMessageBoxDlg>("TVRXMessageBoxDlg", TComponent::StaticClass())
          .Published(Buttons)
          .Doc(QStringLiteral("The buttons; OK when there are none."))
          .Published(Caption)
          .Doc(QStringLiteral("What stands in the title bar; the usual text when it is empty."))
          .Published(CustomGlyphImageList)
          .Doc(QStringLiteral("Holds the picture of a message of a kind of its own."))
          .Published(CustomGlyphIndex)
          .Published(DefaultButton)
          .Doc(QStringLiteral("The button that Return presses."))
          .Published(DlgType)
          .Doc(QStringLiteral("The kind of message, which decides the picture."))
          .Passive("HelpContext", 0)
          .Published(ImageList)
          .Doc(QStringLiteral("Pictures of the buttons, in their order."))
          .Event("OnClose")
          .Event("OnShow")
          .ClassDoc(QStringLiteral("Shows a message with buttons."),
                    "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 pen accent 2 path 8 10.5 16 10.5 "
                    "pen line "
                    "1.5 box 6 14 5 3.2 1 box 13 14 5 3.2 1"));
  return cls;
}

TVRXBaseDialog::Content TVRXAboutDlg::MakeContent() {
  auto* lines = new QWidget;
  auto* column = new QVBoxLayout(lines);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
  const std::pair<const char*, QString> texts[] = {{"programName", Get(ProgramName)},
                                                   {"version", Get(Version)},
                                                   {"copyright", Get(Copyright)},
                                                   {"comment", Get(Comment)}};
  for (const auto& [name, text] : texts) {
    if (text.isEmpty()) continue;
    auto* label = new QLabel(text);
    label->setObjectName(QLatin1StringView(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    if (text == texts[0].second) {
      QFont font = label->font();
      font.setPointSizeF(font.pointSizeF() * 1.6);
      font.setBold(true);
      label->setFont(font);
    }
    column->addWidget(label);
  }
  if (column->isEmpty() && IsPreview()) {
    auto* nothing = new QLabel(
        QObject::tr("There is nothing to tell yet. Set ProgramName, Version, Copyright or Comment."));
    nothing->setObjectName(QStringLiteral("nothing"));
    nothing->setWordWrap(true);
    column->addWidget(nothing);
  }
  lines->setMinimumWidth(260);
  return {lines, nullptr, false,
          Get(ProgramName).isEmpty() ? QObject::tr("About") : QObject::tr("About %1").arg(Get(ProgramName))};
}

TVRXBaseDialog::Content TVRXTipDlg::MakeContent() {
  auto* page = new QWidget;
  auto* tip = new QLabel;
  tip->setObjectName(QStringLiteral("tip"));
  tip->setTextFormat(Qt::PlainText);
  tip->setWordWrap(true);
  tip->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  tip->setMinimumSize(320, 90);
  auto* next = new QPushButton(QObject::tr("&Next Tip"));
  next->setObjectName(QStringLiteral("next"));
  next->setAutoDefault(false);
  auto* atStart = new QCheckBox(QObject::tr("&Show tips when the program starts"));
  atStart->setObjectName(QStringLiteral("atStart"));
  atStart->setChecked(Get(ShowAtStart));
  const QStringList tips = Get(Tips)->Lines();
  const int count = static_cast<int>(tips.size());
  // A number beyond the last tip begins again.
  const auto shown = std::make_shared<int>(count > 0 ? ((Get(TipIndex) % count) + count) % count : 0);
  const auto show = [tip, tips, shown] { tip->setText(tips.value(*shown)); };
  show();
  next->setEnabled(count > 1);
  QObject::connect(next, &QPushButton::clicked, tip, [shown, count, show] {
    *shown = (*shown + 1) % count;
    show();
  });
  auto* row = new QHBoxLayout;
  row->addWidget(atStart, 1);
  row->addWidget(next);
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(tip, 1);
  column->addLayout(row);
  return {page,
          [this, atStart, shown, count] {
            Set(ShowAtStart, atStart->isChecked());
            if (count > 0) Set(TipIndex, (*shown + 1) % count);
          },
          true, QObject::tr("Tip of the day")};
}

namespace {
struct ButtonKind {
  TVRXMsgDlgBtn button;
  QMessageBox::StandardButton standard;
  int result;
};
constexpr ButtonKind Kinds[] = {
    {TVRXMsgDlgBtn::mbYes, QMessageBox::Yes, 6},       {TVRXMsgDlgBtn::mbNo, QMessageBox::No, 7},
    {TVRXMsgDlgBtn::mbOK, QMessageBox::Ok, 1},         {TVRXMsgDlgBtn::mbCancel, QMessageBox::Cancel, 2},
    {TVRXMsgDlgBtn::mbAbort, QMessageBox::Abort, 3},   {TVRXMsgDlgBtn::mbRetry, QMessageBox::Retry, 4},
    {TVRXMsgDlgBtn::mbIgnore, QMessageBox::Ignore, 5},
};
}  // namespace

int TVRXMessageBoxDlg::Execute(const QString& text) const {
  using enum TVRXMsgDlgType;
  struct Look {
    TVRXMsgDlgType type;
    QMessageBox::Icon icon;
    QString caption;
  };
  const Look looks[] = {{mtWarning, QMessageBox::Warning, QObject::tr("Warning")},
                        {mtError, QMessageBox::Critical, QObject::tr("Error")},
                        {mtInformation, QMessageBox::Information, QObject::tr("Information")},
                        {mtConfirmation, QMessageBox::Question, QObject::tr("Confirm")},
                        {mtCustom, QMessageBox::NoIcon, QCoreApplication::applicationName()}};
  const Look& look = looks[static_cast<std::size_t>(Get(DlgType))];
  QMessageBox box(QApplication::activeWindow());
  box.setWindowTitle(Get(Caption).isEmpty() ? look.caption : Get(Caption));
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
  box.setIcon(look.icon);
  if (const auto* glyphs = Get(CustomGlyphImageList);
      look.type == mtCustom && glyphs && !glyphs->Image(Get(CustomGlyphIndex)).isNull())
    box.setIconPixmap(QPixmap::fromImage(glyphs->Image(Get(CustomGlyphIndex))));
  TVRXMsgDlgButtons buttons = Get(Buttons);
  if (buttons == TVRXMsgDlgButtons()) buttons.Include(TVRXMsgDlgBtn::mbOK);
  int index = 0;
  for (const ButtonKind& kind : Kinds) {
    if (!buttons.Contains(kind.button)) continue;
    QPushButton* button = box.addButton(kind.standard);
    if (const auto* pictures = Get(ImageList); pictures && !pictures->Image(index).isNull())
      button->setIcon(QIcon(QPixmap::fromImage(pictures->Image(index))));
    ++index;
    if (kind.button == Get(DefaultButton)) box.setDefaultButton(button);
  }
  const int pressed = VRXRunDialog(box);
  for (const ButtonKind& kind : Kinds)
    if (pressed == kind.standard) return kind.result;
  return 2;
}
