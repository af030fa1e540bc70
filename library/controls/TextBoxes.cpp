#include "library/controls/TextBoxes.h"

#include "library/controls/Faced.h"
#include "vcl/DesignMarks.h"
#include "vcl/Form.h"
#include "vcl/FormColors.h"
#include "vcl/ItemPainting.h"
#include "vcl/ListBox.h"
#include "vcl/PropertyGroups.h"

// --- Words that are completed

const TClass& TVRXEditAutoComplete::StaticClass() {
  static const TClass cls(
      VRXWithFace(
          DescribeClass<TVRXEditAutoComplete>("TVRXEditAutoComplete", TVRXCustomDropDownBox::StaticClass()))
          .PublishAll(Placing, Lettering, Hints, "Alignment", "BorderStyle", "CharCase", "DropDownHeight",
                      "DropDownWidth", "MaxLength", "PopupMenu", "ReadOnly", "TabOrder", "Text", "TextHint",
                      "Visible", MouseEvents, KeyEvents, FocusEvents, "OnChange", "OnCloseUp", "OnDropDown")
          .Publish("AutoSize", true)
          .Published(CaseSensitive)
          .Doc(QStringLiteral("Tells small letters from big ones."))
          .Publish("Color", clWindow)
          .Published(CompleteMode)
          .Doc(QStringLiteral("Whether words are completed in the field, offered in a list, or both."))
          .Published(DropDownCount)
          .Doc(QStringLiteral("Words that the list shows."))
          .Published(MinLength)
          .Doc(QStringLiteral("Letters that must be typed before words are offered."))
          .Publish("ParentColor", false)
          .Published(Sorted)
          .Doc(QStringLiteral("Offers the words in the order of the alphabet."))
          .Publish("TabStop", true)
          .Published(Words)
          .Doc(QStringLiteral("The words that are known."))
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("An edit that completes what is typed from a list of words."),
              "pen line 1.5 brush fill box 2.5 4.5 19 8 2 pen none brush accent+20 box 10 6.5 8.5 4 0 pen "
              "accent 2 path 10 6.5 10 10.5 pen line 1.5 path 5 8.5 8 8.5 path 5 16 14 16 path 5 19.5 "
              "11 19.5"));
  return cls;
}

// The name that a new one shows has room.
TVRXEditAutoComplete::TVRXEditAutoComplete(TComponent* owner) : TVRXCustomDropDownBox(owner) {
  SetBounds(0, 0, 176, 23);
}

QStringList TVRXEditAutoComplete::Suggestions() const {
  const QString& text = Text();
  if (text.size() < std::max(1, Get(MinLength)) || Get(ReadOnly)) return {};
  const auto sensitive = Get(CaseSensitive) ? Qt::CaseSensitive : Qt::CaseInsensitive;
  QStringList words;
  for (const QString& word : Get(Words)->Lines())
    if (word.size() > text.size() && word.startsWith(text, sensitive) && !words.contains(word)) words << word;
  if (Get(Sorted)) words.sort(Qt::CaseInsensitive);
  return words;
}

QString TVRXEditAutoComplete::Completion() const {
  if (Get(CompleteMode) == TVRXCompleteMode::cmList) return {};
  return Suggestions().value(0).mid(Text().size());
}

std::unique_ptr<TControl> TVRXEditAutoComplete::MakeDropDown() const {
  const QStringList words = Suggestions();
  if (words.isEmpty() || Get(CompleteMode) == TVRXCompleteMode::cmInline) return nullptr;
  auto list = Dropped<TListBox>(std::to_array({"Color"}));
  list->Get(TCustomListBox::Items)->SetLines(words);
  list->Set(TCustomListBox::ItemIndex, 0);
  list->SetHeight(RowsHeight(std::min(Get(DropDownCount), static_cast<int>(words.size()))));
  return list;
}

void TVRXEditAutoComplete::PaintText(TCanvas& canvas, const QRect& room) const {
  const QString typed = ShownText(), added = ShownText() == Text() ? Completion() : QString();
  if (added.isEmpty()) return TVRXCustomDropDownBox::PaintText(canvas, room);
  const TVRXFaceLook look = VRXFaceOf(*this);
  const TFont& own = look.Font(*Font());
  const QSize all = TextExtent(typed + added, own), first = TextExtent(typed, own);
  const int left = all.width() >= room.width() || Get(Alignment) == TAlignment::taLeftJustify ? 0
                   : Get(Alignment) == TAlignment::taCenter ? (room.width() - all.width()) / 2
                                                            : room.width() - all.width();
  QRect place = room.adjusted(left, 0, 0, 0);
  PaintPlainText(canvas,
                 QRect(place.topLeft(), QSize(std::min(first.width() + 1, place.width()), place.height())),
                 Qt::AlignLeft, typed, own, look.HasLetters(Enabled()));
  place.setLeft(place.left() + first.width());
  const QRect mark(place.left(), place.top() + (place.height() - all.height()) / 2,
                   std::min(all.width() - first.width() + 1, place.width()), all.height());
  if (mark.isEmpty()) return;
  canvas.FillRect(mark, Enabled() ? clHighlight : clBtnShadow);
  TFont font;
  font.Assign(&own);
  font.SetColor(clHighlightText);
  PaintPlainText(canvas, mark, Qt::AlignLeft, added, font, Enabled());
}

// --- Tags

const TClass& TVRXTagEditor::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXTagEditor>("TVRXTagEditor", TCustomEdit::StaticClass())
          .PublishAll(Placing, Lettering, Hints, "BorderStyle", "PopupMenu", "ReadOnly", "TabOrder",
                      "TextHint", "Visible", MouseEvents, KeyEvents, FocusEvents, "OnChange")
          .Publish("AutoSize", true)
          .Publish("Color", clWindow)
          .Publish("ParentColor", false)
          .Publish("TabStop", true)
          .Published(AllowDuplicates)
          .Doc(QStringLiteral("Shows a tag that is there twice twice."))
          .Published(ShowAddMark)
          .Doc(QStringLiteral("A mark behind the tags that adds one."))
          .Published(ShowCloseMarks)
          .Doc(QStringLiteral("A mark on each tag that takes it away."))
          .Published(Spacing)
          .Doc(QStringLiteral("Pixels between the tags."))
          .Published(TagBorderColor)
          .Doc(QStringLiteral("Color of the line around a tag; clNone is none."))
          .Published(TagColor)
          .Doc(QStringLiteral("Color of the tags."))
          .Published(TagRadius)
          .Doc(QStringLiteral("Roundness of the tags' corners, in pixels."))
          .Published(TagTextColor)
          .Doc(QStringLiteral("Color of the tags' texts."))
          .Published(Tags)
          .Doc(QStringLiteral("The tags, one a line."))
          .Published(WrapTags)
          .Doc(QStringLiteral("Goes on in a new row where one is full."))
          .Event("OnAddTag")
          .Event("OnDeleteTag")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A field whose words stand as tags that can be taken away."),
              "pen line 1.5 brush fill box 2 5.5 20 13 2 pen none brush accent box 4.5 9 8.5 6 3 brush "
              "line box 14.5 9 5.5 6 3 pen #ffffff 1.3 path 9.2 10.8 11.2 13.2 path 11.2 10.8 9.2 13.2"));
  return cls;
}

TVRXTagEditor::TVRXTagEditor(TComponent* owner) : TCustomEdit(owner) { SetBounds(0, 0, 200, 27); }

namespace {
constexpr int Inset = 3, TagMargin = 6, Mark = 8;
}

QRect TVRXTagEditor::Room() const {
  const int frame = Get(BorderStyle) == TBorderStyle::bsSingle ? Inset : 1;
  return ClientRect().adjusted(frame, frame, -frame, -frame);
}

int TVRXTagEditor::TagHeight() const { return TextExtent(QStringLiteral("Wg"), *Font()).height() + 4; }

QStringList TVRXTagEditor::ShownTags() const {
  QStringList tags = Get(Tags)->Lines();
  for (QString& tag : tags) tag = tag.trimmed();
  tags.removeAll(QString());
  if (!Get(AllowDuplicates)) tags.removeDuplicates();
  return tags;
}

std::vector<QRect> TVRXTagEditor::Places() const {
  const QRect room = Room();
  const int gap = std::clamp(Get(Spacing), 0, 100), height = TagHeight();
  std::vector<QRect> places;
  QPoint at = room.topLeft();
  const auto place = [&](int width) {
    width = std::min(width, std::max(room.width(), 1));
    if (Get(WrapTags) && at.x() > room.left() && at.x() + width > room.right() + 1)
      at = QPoint(room.left(), at.y() + height + gap);
    places.emplace_back(at, QSize(width, height));
    at.rx() += width + gap;
  };
  const int close = Get(ShowCloseMarks) ? Mark + 4 : 0;
  for (const QString& tag : ShownTags()) place(TextExtent(tag, *Font()).width() + 2 * TagMargin + close);
  if (Get(ShowAddMark)) place(height);
  return places;
}

QRect TVRXTagEditor::TagRect(int index) const {
  const auto places = Places();
  return index >= 0 && index < ShownTags().size() ? places[static_cast<std::size_t>(index)] : QRect();
}
QRect TVRXTagEditor::CloseRect(int index) const { return CloseIn(TagRect(index)); }
QRect TVRXTagEditor::CloseIn(const QRect& tag) const {
  if (tag.isEmpty() || !Get(ShowCloseMarks)) return {};
  return {tag.right() - TagMargin - Mark + 2, tag.top() + (tag.height() - Mark) / 2, Mark, Mark};
}
QRect TVRXTagEditor::AddRect() const { return Get(ShowAddMark) ? Places().back() : QRect(); }

int TVRXTagEditor::TagAt(QPoint point) const {
  const auto places = Places();
  for (int i = 0; i < ShownTags().size(); ++i)
    if (places[static_cast<std::size_t>(i)].contains(point)) return i;
  return -1;
}

bool TVRXTagEditor::DeleteTag(int index) {
  const QStringList shown = ShownTags();
  if (index < 0 || index >= shown.size()) return false;
  // The line that is shown there, and those that are not shown because of it.
  QStringList lines;
  int at = 0;
  const QString gone = shown[index];
  for (const QString& line : Get(Tags)->Lines()) {
    const QString tag = line.trimmed();
    const bool here = Get(AllowDuplicates) ? !tag.isEmpty() && at++ == index : tag == gone;
    if (!here) lines << line;
  }
  Get(Tags)->SetLines(lines);
  return true;
}

QSize TVRXTagEditor::AutoSizeHint() const {
  const auto places = Places();
  const int below = places.empty() ? Room().top() + TagHeight() : places.back().bottom() + 1;
  return {Width(), below + Room().top()};
}

void TVRXTagEditor::PaintTag(TCanvas& canvas, const QRect& rect, const QString& tag) const {
  QPainter& p = canvas.Painter();
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  const bool adds = tag.isEmpty();
  const TColor border = Get(TagBorderColor), face = Get(TagColor);
  p.setPen(border == clNone ? QPen(Qt::NoPen)
                            : QPen(ToQColor(border), 1, adds ? Qt::DashLine : Qt::SolidLine));
  p.setBrush(adds || face == clNone ? QBrush(Qt::NoBrush) : QBrush(ToQColor(face)));
  const double radius = std::clamp(Get(TagRadius), 0, rect.height() / 2);
  p.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
  const QColor ink = ToQColor(Enabled() ? (adds ? clGrayText : Get(TagTextColor)) : clGrayText);
  p.setPen(QPen(ink, 1.2));
  if (adds) {
    const QPointF middle = QRectF(rect).center();
    p.drawLine(middle - QPointF(4, 0), middle + QPointF(4, 0));
    p.drawLine(middle - QPointF(0, 4), middle + QPointF(0, 4));
  } else if (const QRectF mark = QRectF(CloseIn(rect)).adjusted(1, 1, -1, -1); mark.isValid()) {
    p.drawLine(mark.topLeft(), mark.bottomRight());
    p.drawLine(mark.topRight(), mark.bottomLeft());
  }
  p.restore();
  if (adds) return;
  TFont font;
  font.Assign(Font());
  font.SetColor(Get(TagTextColor));
  const int close = Get(ShowCloseMarks) ? Mark + 4 : 0;
  PaintPlainText(canvas, rect.adjusted(TagMargin, 0, 1 - TagMargin - close, 0), Qt::AlignLeft, tag, font,
                 Enabled());
}

void TVRXTagEditor::Paint(TCanvas& canvas) {
  TPartStates states = PartStates();
  if (Get(ReadOnly)) states.Include(TPartState::ReadOnly);
  const bool framed = Get(BorderStyle) == TBorderStyle::bsSingle;
  const QRect ground = framed ? PaintListFrame(canvas, ClientRect(), states) : ClientRect();
  if (!framed || Color() != clWindow) canvas.FillRect(ground, Color());
  canvas.Painter().save();
  canvas.Painter().setClipRect(ground, Qt::IntersectClip);
  const auto places = Places();
  const QStringList tags = ShownTags();
  for (std::size_t i = 0; i < places.size(); ++i)
    if (places[i].top() <= ground.bottom() && places[i].left() <= ground.right())
      PaintTag(canvas, places[i], tags.value(static_cast<qsizetype>(i)));
  QRect rest = Room();
  if (!places.empty())
    rest = QRect(QPoint(places.back().right() + TagMargin, places.back().top()),
                 QPoint(rest.right(), places.back().bottom()));
  PaintPlainText(canvas, rest, Qt::AlignLeft, Get(TextHint), *Font(), false);
  if (tags.isEmpty() && Get(TextHint).isEmpty())
    PaintDesignName(canvas, rest, *this, Qt::AlignLeft | Qt::AlignVCenter);
  canvas.Painter().restore();
}

// --- Forms

const TClass& TVRXFormComboBox::StaticClass() {
  static const TClass cls(
      AsBox(DescribeClass<TVRXFormComboBox>("TVRXFormComboBox", TVRXCustomDropDownBox::StaticClass())
                .PublishAll("CharCase", "MaxLength", "Text")
                .Published(DropDownControl)
                .Doc(QStringLiteral("The form, or the panel of this form, that drops down.")))
          .ClassDoc(
              QStringLiteral("A field that opens a form."),
              "pen line 1.5 brush fill box 2.5 3.5 19 7 2 box 2.5 10.5 19 10 1 pen none brush accent box "
              "3.2 11.2 17.6 2.6 0 brush none pen line 1.5 path 6 17 11 17 box 14 15.5 5 3 0.5 pen accent "
              "2 path 14.5 6 17 8.5 19.5 6"));
  return cls;
}

TVRXFormComboBox::TVRXFormComboBox(TComponent* owner) : TVRXCustomDropDownBox(owner) {
  SetBounds(0, 0, 176, 23);
}

// What the field itself stands in cannot drop down from it.
TWinControl* TVRXFormComboBox::Shown() const {
  TWinControl* control = Get(DropDownControl);
  for (const TControl* around = this; around; around = around->Parent())
    if (around == control) return nullptr;
  return control;
}

QSize TVRXFormComboBox::DropDownSize() const {
  const TWinControl* control = Shown();
  if (!control) return {};
  const int width = Get(DropDownWidth), height = Get(DropDownHeight);
  const auto* form = As<TForm>(control);
  const QSize own = form ? QSize(form->ClientWidth(), form->ClientHeight()) : control->BoundsRect().size();
  constexpr int most = 2000;
  return QSize(width > 0 ? width : std::max(own.width(), Width()), height > 0 ? height : own.height())
      .boundedTo({most, most});
}

void TVRXFormComboBox::PaintDropDown(TCanvas& canvas, const QRect& rect) const {
  TWinControl* control = Shown();
  if (!control || rect.isEmpty()) return;
  QPainter& p = canvas.Painter();
  p.save();
  p.setClipRect(rect, Qt::IntersectClip);
  canvas.FillRect(rect, control->Color());
  p.translate(rect.topLeft());
  PaintControl(*control, p);
  p.restore();
  canvas.Frame3D(rect, clGrayText, clGrayText, 1);
}
