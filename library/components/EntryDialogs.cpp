#include "library/components/EntryDialogs.h"

#include <QtWidgets>

#include "library/components/FolderTree.h"
#include "library/values/CalculatorEngine.h"
#include "rtl/Clock.h"
#include "vcl/Calendar.h"
#include "vcl/DayPicker.h"

const TClass& TVRXInputDlg::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXInputDlg>("TVRXInputDlg", TVRXBaseDialog::StaticClass())
          .Published(MaxLength)
          .Doc(QStringLiteral("How many characters it takes at most; 0 for any number."))
          .Published(Password)
          .Doc(QStringLiteral("Whether what is typed is not to be read."))
          .Published(Value)
          .Doc(QStringLiteral("The text that it begins with, and that was entered."))
          .ClassDoc(
              QStringLiteral("Asks for a line of text."),
              "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 brush none box 6 11.5 12 5 1 pen accent "
              "2 path 8.5 12.8 8.5 15.2"));
  return cls;
}

const TClass& TVRXTextEditDlg::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXTextEditDlg>("TVRXTextEditDlg", TVRXBaseDialog::StaticClass())
          .Published(Lines)
          .Doc(QStringLiteral("The text that it begins with, and that was entered."))
          .Published(ReadOnly)
          .Doc(QStringLiteral("Whether the text is only shown."))
          .Published(WordWrap)
          .Doc(QStringLiteral("Goes on in a new line where one is full."))
          .ClassDoc(
              QStringLiteral("Shows a text of many lines to be edited."),
              "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 pen accent 1.8 path 6 11.2 18 11.2 pen "
              "line 1.5 path 6 14.2 16 14.2 path 6 17.2 12 17.2"));
  return cls;
}

const TClass& TVRXCheckListDlg::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCheckListDlg>("TVRXCheckListDlg", TVRXBaseDialog::StaticClass())
          .Published(Checked)
          .Doc(QStringLiteral("The items that are checked."))
          .Published(Items)
          .Doc(QStringLiteral("What can be checked."))
          .ClassDoc(
              QStringLiteral("Asks which entries of a list are wanted."),
              "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 path 12 12 18 12 path 12 16.5 18 16.5 "
              "pen accent 2 path 6 11.8 7.4 13.2 9.6 10.4 path 6 16.3 7.4 17.7 9.6 14.9"));
  return cls;
}

const TClass& TVRXCalendarDlg::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCalendarDlg>("TVRXCalendarDlg", TVRXBaseDialog::StaticClass())
          .Published(Date)
          .Type(DateType())
          .Doc(QStringLiteral("The day that it begins with, and that was picked; today when there is none."))
          .Published(MaxDate)
          .Type(DateType())
          .Doc(QStringLiteral("The last day that can be picked."))
          .Published(MinDate)
          .Type(DateType())
          .Doc(QStringLiteral("The first day that can be picked."))
          .ClassDoc(
              QStringLiteral("Asks for a day on a calendar."),
              "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 pen none brush line box 6 10.5 3 2.4 0 "
              "box "
              "10.5 10.5 3 2.4 0 box 15 10.5 3 2.4 0 box 6 15 3 2.4 0 brush accent box 10.2 14.6 3.6 3.2 0"));
  return cls;
}

const TClass& TVRXCalculatorDlg::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXCalculatorDlg>("TVRXCalculatorDlg", TVRXBaseDialog::StaticClass())
          .Published(Value)
          .Doc(QStringLiteral("The number that it begins with, and that came out."))
          .ClassDoc(
              QStringLiteral("Asks for a number, which can be reckoned."),
              "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 pen accent 2 path 6 13.5 10 13.5 path 8 "
              "11.5 8 15.5 pen line 1.8 path 13.5 12.2 18 12.2 path 13.5 15 18 15"));
  return cls;
}

const TClass& TVRXDirDlg::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXDirDlg>("TVRXDirDlg", TVRXBaseDialog::StaticClass())
          .Published(Directory)
          .Doc(QStringLiteral("The folder that it begins with, and that was picked."))
          .Published(ShowHidden)
          .Doc(QStringLiteral("Whether hidden folders are listed."))
          .ClassDoc(QStringLiteral("Asks for a folder in a tree."),
                    "pen line 1.5 brush fill box 3 4 18 16 2 path 3 8 21 8 path 7 10.5 7 17 10.5 17 path 7 "
                    "13 10.5 13 "
                    "pen none brush accent box 11.5 11.5 6.5 2.8 0 box 11.5 15.6 6.5 2.8 0"));
  return cls;
}

namespace {
template <class W>
W* Named(W* widget, const char* name) {
  widget->setObjectName(QLatin1StringView(name));
  return widget;
}
constexpr int Day0 = 2415019;  // the Julian day of 1899-12-30
QDate DateOf(TDateTime value) {
  return value.Days == 0 ? QDate() : QDate::fromJulianDay(Day0 + static_cast<qint64>(std::floor(value.Days)));
}
}  // namespace

TVRXBaseDialog::Content TVRXInputDlg::MakeContent() {
  auto* edit = Named(new QLineEdit(Get(Value)), "value");
  if (Get(MaxLength) > 0) edit->setMaxLength(Get(MaxLength));
  if (Get(Password)) edit->setEchoMode(QLineEdit::Password);
  edit->setMinimumWidth(260);
  edit->selectAll();
  return {edit, [this, edit] { Set(Value, edit->text()); }, true, QObject::tr("Input")};
}

TVRXBaseDialog::Content TVRXTextEditDlg::MakeContent() {
  auto* edit = Named(new QPlainTextEdit(Get(Lines)->Text()), "text");
  edit->setReadOnly(Get(ReadOnly));
  edit->setLineWrapMode(Get(WordWrap) ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
  edit->setTabChangesFocus(true);
  edit->setMinimumSize(360, 220);
  // A text that nobody has touched keeps its lines as they are.
  return {edit,
          [this, edit] {
            if (edit->document()->isModified()) Get(Lines)->SetText(edit->toPlainText());
          },
          !Get(ReadOnly), QObject::tr("Text")};
}

TVRXBaseDialog::Content TVRXCheckListDlg::MakeContent() {
  auto* list = Named(new QListWidget, "items");
  list->setMinimumSize(260, 180);
  const QStringList checked = Get(Checked)->Lines();
  for (const QString& text : Get(Items)->Lines()) {
    auto* item = new QListWidgetItem(text, list);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(checked.contains(text) ? Qt::Checked : Qt::Unchecked);
  }
  return {list,
          [this, list] {
            QStringList texts;
            for (int i = 0; i < list->count(); ++i)
              if (list->item(i)->checkState() == Qt::Checked) texts << list->item(i)->text();
            Get(Checked)->SetLines(texts);
          },
          true, QObject::tr("Choose")};
}

TVRXBaseDialog::Content TVRXCalendarDlg::MakeContent() {
  auto* calendar = Named(new DayPicker, "calendar");
  if (const QDate first = DateOf(Get(MinDate)); first.isValid()) calendar->setMinimumDate(first);
  if (const QDate last = DateOf(Get(MaxDate)); last.isValid()) calendar->setMaximumDate(last);
  const QDate day = DateOf(Get(Date));
  calendar->setSelectedDate(day.isValid() ? day : ClockDateTime().date());
  // Return, or a double-click.
  QObject::connect(calendar, &QCalendarWidget::activated, calendar,
                   [calendar] { VRXConfirmDialog(*calendar); });
  return {calendar,
          [this, calendar] {
            Set(Date, TDateTime{static_cast<double>(calendar->selectedDate().toJulianDay() - Day0)});
          },
          true, QObject::tr("Calendar")};
}

TVRXBaseDialog::Content TVRXCalculatorDlg::MakeContent() {
  static const char* const keys[] = {"C", "CE", "back", "/", "7", "8", "9",   "*", "4", "5",
                                     "6", "-",  "1",    "2", "3", "+", "+/-", "0", ".", "="};
  auto* pad = Named(new QWidget, "pad");
  auto* grid = new QGridLayout(pad);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(4);
  const auto engine = std::make_shared<TVRXCalculatorEngine>(Get(Value));
  auto* display = Named(new QLineEdit(engine->Display()), "display");
  display->setReadOnly(true);
  display->setAlignment(Qt::AlignRight);
  grid->addWidget(display, 0, 0, 1, 4);
  pad->setFocusProxy(display);
  int at = 4;
  for (const char* key : keys) {
    auto* button = Named(new QPushButton(QLatin1StringView(key)), key);
    button->setAutoDefault(false);
    button->setFixedWidth(52);
    const auto press = [engine, display, key] {
      engine->Press(QString(QLatin1StringView(key)));
      display->setText(engine->Display());
    };
    QObject::connect(button, &QPushButton::clicked, display, press);
    // "&" stands in no key, and digits and signs are their own. A shortcut of the button's would click it,
    // and it takes no other click for as long as it is shown pressed.
    if (qstrlen(key) == 1) {
      auto* typed = new QShortcut(QKeySequence(QLatin1StringView(key)), button);
      // Keypads have a comma in many countries.
      if (*key == '.') typed->setKeys({Qt::Key_Period, Qt::Key_Comma});
      QObject::connect(typed, &QShortcut::activated, display, [button, press] {
        press();
        button->setDown(true);
        QTimer::singleShot(100, button, [button] { button->setDown(false); });
      });
    }
    grid->addWidget(button, at / 4, at % 4);
    ++at;
  }
  for (const auto& [code, key] : {std::pair{Qt::Key_Backspace, "back"}, {Qt::Key_Delete, "CE"}})
    QObject::connect(new QShortcut(QKeySequence(code), pad), &QShortcut::activated, display,
                     [engine, display, name = QLatin1StringView(key)] {
                       engine->Press(QString(name));
                       display->setText(engine->Display());
                     });
  return {pad,
          [this, engine] {
            if (engine->IsPending()) engine->Press(u"=");
            if (!engine->HasError()) Set(Value, engine->Value());
          },
          true, QObject::tr("Calculator"),
          [engine] {
            TVRXCalculatorEngine result = *engine;
            if (result.IsPending()) result.Press(u"=");
            return result.HasError() ? QObject::tr("The calculation has no result. Press C and begin anew.")
                                     : QString();
          }};
}

TVRXBaseDialog::Content TVRXDirDlg::MakeContent() {
  auto* folders = new FolderTree(Get(Directory), {.hidden = Get(ShowHidden)});
  return {
      folders, [this, folders] { Set(Directory, folders->Folder()); }, true, QObject::tr("Folder"),
      [folders] {
        return QFileInfo(folders->Folder()).isDir()
                   ? QString()
                   : QObject::tr("There is no folder \"%1\". Pick one in the tree.").arg(folders->Folder());
      }};
}
