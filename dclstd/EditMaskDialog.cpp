#include "dclstd/EditMaskDialog.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QTableWidget>

#include "dclstd/EditValue.h"

namespace {
struct Sample {
  const char* name;
  const char* look;
  const char* mask;
};
constexpr Sample Samples[] = {{"Phone", "(415) 555-1212", "!\\(999\\) 000-0000;1;_"},
                              {"Extension", "15450", "!99999;1;_"},
                              {"Zip code", "90504", "00000;1;_"},
                              {"Long zip code", "90504-1357", "00000-9999;0;_"},
                              {"Date", "27.06.94", "!99/99/00;1;_"},
                              {"Date with century", "1994-06-27", "0000-00-00;1;_"},
                              {"Time", "21:05", "!90:00;1;_"},
                              {"Long time", "09:05:15 PM", "!90:00:00 >LL;1;_"},
                              {"Serial number", "AB12-CD34-EF56", ">AAAA-AAAA-AAAA;0;_"}};

// A letter of masks, the one that the field it is tried in has for it, and what it takes.
struct Letter {
  char16_t mask, field;
  bool (*takes)(QChar);
};
constexpr bool (*IsLetter)(QChar) = [](QChar c) { return c.isLetter(); };
constexpr bool (*IsEither)(QChar) = [](QChar c) { return c.isLetterOrNumber(); };
constexpr bool (*IsDigit)(QChar) = [](QChar c) { return c.isDigit(); };
constexpr bool (*IsSigned)(QChar) = [](QChar c) { return c.isDigit() || c == u'+' || c == u'-'; };
constexpr bool (*IsAny)(QChar) = [](QChar) { return true; };
constexpr Letter Letters[] = {{u'L', u'A', IsLetter}, {u'l', u'a', IsLetter}, {u'A', u'N', IsEither},
                              {u'a', u'n', IsEither}, {u'C', u'X', IsAny},    {u'c', u'x', IsAny},
                              {u'0', u'9', IsDigit},  {u'9', u'0', IsDigit},  {u'#', u'#', IsSigned},
                              {u'>', u'>', nullptr},  {u'<', u'<', nullptr}};

// What stands at each place of the field: a letter of the mask, or what the mask puts between.
struct Place {
  const Letter* letter;
  QChar literal;
};
// Places that switch cases take no room (`letter` without `takes`).
std::vector<Place> PlacesOf(const QString& pattern) {
  static constexpr Letter eitherCase{u'>', u'!', nullptr};
  std::vector<Place> places;
  for (qsizetype i = 0; i < pattern.size(); ++i) {
    const QChar c = pattern[i];
    if (c == u'!') continue;
    if (c == u'<' && pattern.mid(i + 1, 1) == u'>') {
      places.push_back({&eitherCase, {}});
      ++i;
      continue;
    }
    const auto* letter = std::find_if(std::begin(Letters), std::end(Letters),
                                      [&](const Letter& l) { return QChar(l.mask) == c; });
    if (letter != std::end(Letters)) {
      places.push_back({letter, {}});
      continue;
    }
    if (c == u'\\' && ++i == pattern.size()) break;
    places.push_back({nullptr, c == u'_' ? QChar(u' ') : pattern[i]});
  }
  return places;
}

// The same mask in the letters of the field.
QString FieldMask(const TEditMask& mask) {
  QString text;
  for (const Place& place : PlacesOf(mask.Pattern)) {
    if (!place.letter) text += u'\\';
    text += place.letter ? QChar(place.letter->field) : place.literal;
  }
  return text.isEmpty() ? text : text + u';' + mask.Blank;
}

// The field itself would look for a later place that takes the character.
bool Takes(const TEditMask& mask, int cursor, QChar typed) {
  std::vector<Place> places = PlacesOf(mask.Pattern);
  std::erase_if(places, [](const Place& place) { return place.letter && !place.letter->takes; });
  for (std::size_t at = static_cast<std::size_t>(cursor); at < places.size(); ++at)
    if (places[at].letter) {
      const bool later = std::any_of(places.begin() + static_cast<std::ptrdiff_t>(at), places.end(),
                                     [&](const Place& p) { return !p.letter && p.literal == typed; });
      return later || places[at].letter->takes(typed);
    } else if (places[at].literal == typed) {
      return true;
    }
  return true;
}
}  // namespace

EditMaskDialog::EditMaskDialog(QWidget* owner) : RowDialog(tr("Input Mask Editor"), owner) {
  auto* grid = new QGridLayout;
  RowsInto(*grid);
  Row(mask, "mask", "", "Input &mask:",
      "0 and 9: a digit, L and l: a letter, A and a: either, C and c: anything; the small ones and 9 may be "
      "left out. # takes a sign, too. > and < make letters large and small, \\ makes the next one plain.")
      .Changes(&EditMaskDialog::maskChange);
  Row(blank, "blank", "", "Character for &blanks:", "Shown where nothing has been typed yet")
      .Changes(&EditMaskDialog::maskChange);
  blank->setMaxLength(1);
  Row(literals, "literals", "", "&Save literal characters", "The text has what the mask puts between")
      .Changes(&EditMaskDialog::maskChange);
  Row(test, "test", "", "&Test input:", "A field that takes what the mask takes");
  test->installEventFilter(this);
  samples = new QTableWidget(static_cast<int>(std::size(Samples)), 2, this);
  samples->setObjectName(QStringLiteral("samples"));
  samples->setHorizontalHeaderLabels({tr("Sample masks"), tr("Looks like")});
  samples->setAccessibleName(tr("Sample masks"));
  samples->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  samples->verticalHeader()->hide();
  samples->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  samples->setEditTriggers(QAbstractItemView::NoEditTriggers);
  samples->setSelectionBehavior(QAbstractItemView::SelectRows);
  samples->setSelectionMode(QAbstractItemView::SingleSelection);
  samples->setShowGrid(false);
  samples->setTabKeyNavigation(false);
  for (int row = 0; row < samples->rowCount(); ++row) {
    samples->setItem(row, 0, new QTableWidgetItem(tr(Samples[row].name)));
    samples->setItem(row, 1, new QTableWidgetItem(QString::fromLatin1(Samples[row].look)));
  }
  Follows(samples);
  connect(samples, &QTableWidget::itemSelectionChanged, this, [this] {
    if (const auto chosen = samples->selectedItems(); !chosen.isEmpty()) TakeSample(chosen.first()->row());
  });
  OkButton(ok, "ok");
  CancelButton(cancel, "cancel");
  auto* left = new QVBoxLayout;
  left->addLayout(grid);
  left->addWidget(samples, 1);
  FinishBeside(left, {}, {ok, cancel}, {480, 400});
  SetMask({});
}

void EditMaskDialog::Show(const TEditMask& shown) {
  const QSignalBlocker quietMask(mask), quietBlank(blank), quietLiterals(literals);
  mask->setText(shown.Pattern);
  blank->setText(shown.Blank);
  literals->setChecked(shown.LiteralsKept);
  test->setInputMask(FieldMask(shown));
  test->clear();
}

void EditMaskDialog::SetMask(const QString& text) {
  Show(TEditMask::Parse(text));
  changed_ = false;
}

QString EditMaskDialog::Mask() const {
  TEditMask edited;
  edited.Pattern = mask->text();
  edited.LiteralsKept = literals->isChecked();
  if (!blank->text().isEmpty()) edited.Blank = blank->text()[0];
  return edited.Text();
}

void EditMaskDialog::maskChange() {
  changed_ = true;
  const QSignalBlocker quiet(samples);
  samples->clearSelection();
  // A mask with all its parts, as forms keep it, is typed or pasted by those who know it.
  static const QRegularExpression whole(QStringLiteral("^.*;[01];.$"));
  if (whole.match(mask->text()).hasMatch()) return Show(TEditMask::Parse(mask->text()));
  test->setInputMask(FieldMask(TEditMask::Parse(Mask())));
}

void EditMaskDialog::TakeSample(int row) {
  Show(TEditMask::Parse(QString::fromLatin1(Samples[row].mask)));
  changed_ = true;
}

bool EditMaskDialog::eventFilter(QObject* watched, QEvent* event) {
  if (watched != test || event->type() != QEvent::KeyPress) return RowDialog::eventFilter(watched, event);
  const QString typed = static_cast<QKeyEvent*>(event)->text();
  return typed.size() == 1 && typed[0].isPrint() &&
         !Takes(TEditMask::Parse(Mask()), test->cursorPosition(), typed[0]);
}

bool EditEditMask(QString& mask) {
  EditMaskDialog dialog(ApplicationOwner());
  dialog.SetMask(mask);
  if (dialog.ShowModal() != mrOk || !dialog.Changed() || dialog.Mask() == mask) return false;
  mask = dialog.Mask();
  return true;
}
