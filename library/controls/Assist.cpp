#include "library/controls/Assist.h"

#include <algorithm>

#include "rtl/Class.h"
#include "vcl/DesignMarks.h"
#include "vcl/PropertyGroups.h"
#include "vcl/ShownText.h"

namespace {
// What the buttons say unless somebody says otherwise, in their order.
struct ButtonRow {
  TVRXAssistButton button;
  const TKept<QString>& caption;
  const char* usual;
};
constexpr TKept<QString> HelpCaption{"HelpCaption"}, BackCaption{"BackCaption"}, NextCaption{"NextCaption"},
    FinishCaption{"FinishCaption"}, CancelCaption{"CancelCaption"};
constexpr ButtonRow ButtonRows[] = {{TVRXAssistButton::abHelp, HelpCaption, "&Help"},
                                    {TVRXAssistButton::abBack, BackCaption, "< &Back"},
                                    {TVRXAssistButton::abNext, NextCaption, "&Next >"},
                                    {TVRXAssistButton::abFinish, FinishCaption, "&Finish"},
                                    {TVRXAssistButton::abCancel, CancelCaption, "Cancel"}};
constexpr int Around = 12, Gap = 8, ButtonHeight = 25, ButtonWidth = 75;
}  // namespace

const TClass& TVRXAssistPage::StaticClass() {
  static const TClass cls(
      WithPagePlace(DescribeClass<TVRXAssistPage>("TVRXAssistPage", TWinControl::StaticClass()))
          .PublishAll("Caption", "Color")
          .Published(Description)
          .Doc(QStringLiteral("What the page is about, below its title in the header."))
          .Published(EnableBack)
          .Doc(QStringLiteral("Whether the page before can be reached from here."))
          .PublishAll("Enabled")
          .Published(EnableNext)
          .Doc(QStringLiteral("Whether the page behind can be reached from here."))
          .PublishAll("Font", Hints)
          .Published(ImageIndex)
          .Doc(QStringLiteral("The picture in the header, out of the wizard's images."))
          .PublishAll(ParentLook, "PopupMenu", FocusEvents, MouseEvents)
          .Event("OnHide")
          .Event("OnShow")
          .ClassDoc(QStringLiteral("A page of a wizard."),
                    "pen line 1.5 brush fill box 4 4.5 16 15 1 pen accent 1.8 path 7 8.5 14 8.5 pen line 1.2 "
                    "path 7 12 17 12 path 7 15 13 15"));
  return cls;
}

TVRXAssist* TVRXAssistPage::AssistControl() const { return static_cast<TVRXAssist*>(Book()); }
void TVRXAssistPage::SetAssistControl(TVRXAssist* assist) { SetParent(assist); }

const TClass& TVRXAssist::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXAssist>("TVRXAssist", TCustomTabControl::StaticClass())
          .Published("ActivePage", &TVRXAssist::ActivePage, &TVRXAssist::SetActivePage)
          .Doc(QStringLiteral("The page in front."))
          .PublishAll(Placing)
          .Published(BackCaption)
          .Published(Buttons)
          .Doc(QStringLiteral("Which buttons there are; on the last page the next one finishes."))
          .Published(CancelCaption)
          .PublishAll("Color", Lettering)
          .Published(FinishCaption)
          .Published(HeaderColor)
          .Published(HelpCaption)
          .PublishAll(Hints)
          .Publish("Images")
          .Doc(QStringLiteral("Pictures for the headers of the pages."))
          .Published(NextCaption)
          .PublishAll("ParentColor", "PopupMenu")
          .Published(ShowHeader)
          .Doc(QStringLiteral("The title of the page and what it is about."))
          .Published(ShowSteps)
          .Doc(QStringLiteral("The titles of all pages, at the left."))
          .Published(StepsColor)
          .Published(StepsWidth)
          .PublishAll("TabOrder")
          .Publish("TabStop", true)
          .PublishAll("Visible", FocusEvents, MouseEvents)
          .Event("OnBack")
          .Event("OnCancel")
          .PublishAll("OnChange", "OnChanging")
          .Event("OnFinish")
          .Event("OnHelp")
          .Event("OnNext")
          .ClassDoc(
              QStringLiteral("A wizard: pages that follow each other, with buttons that lead on."),
              "pen line 1.5 brush fill box 2.5 4.5 19 15 1 pen none brush accent+25 box 3.5 5.5 4.5 13 0 "
              "pen line 1.2 path 10 8.5 18.5 8.5 path 10 11.5 15.5 11.5 pen accent 1.8 path 14 16 19 16 "
              "path 17 14 19 16 17 18"));
  return cls;
}

TVRXAssist::TVRXAssist(TComponent* owner) : TPageBook(owner) { SetBounds(0, 0, 440, 296); }

QRect TVRXAssist::FooterRect() const {
  const int height = Get(Buttons) == TVRXAssistButtons() ? 0 : std::min(ButtonHeight + 2 * Around, Height());
  return {0, Height() - height, Width(), height};
}
QRect TVRXAssist::StepsRect() const {
  const int width = Get(ShowSteps) ? std::clamp(Get(StepsWidth), 0, Width()) : 0;
  return {0, 0, width, FooterRect().top()};
}
QRect TVRXAssist::HeaderRect() const {
  if (!Get(ShowHeader)) return {};
  const int line = TextExtent(QStringLiteral("Wg"), *Font()).height();
  const int left = StepsRect().width();
  return {left, 0, Width() - left, std::min(2 * line + 20, FooterRect().top())};
}

QMargins TVRXAssist::Insets() const {
  return TWinControl::Insets() +
         QMargins(StepsRect().width(), HeaderRect().height(), 0, FooterRect().height());
}

std::vector<QRect> TVRXAssist::TabRects() const {
  std::vector<QRect> rects(Pages().size());
  const QRect steps = StepsRect();
  const int height = TextExtent(QStringLiteral("Wg"), *Font()).height() + 9;
  int y = Around;
  for (QRect& rect : rects) {
    rect = QRect(0, y, steps.width(), height) & steps;
    y += height;
  }
  return rects;
}

QString TVRXAssist::CaptionOf(TVRXAssistButton button) const {
  const ButtonRow& row = ButtonRows[static_cast<int>(button)];
  const QString own = Get(row.caption);
  return own.isEmpty() ? QString::fromLatin1(row.usual) : own;
}

std::vector<TVRXAssist::TButtonPlace> TVRXAssist::ButtonPlaces() const {
  using enum TVRXAssistButton;
  const auto* page = static_cast<TVRXAssistPage*>(FrontPage());
  const int last = static_cast<int>(Pages().size()) - 1, at = FrontTab();
  const auto enabled = [&](TVRXAssistButton button) {
    if (!Enabled()) return false;
    if (button == abBack) return page && at > 0 && page->Get(TVRXAssistPage::EnableBack);
    return button != abNext || (page && page->Get(TVRXAssistPage::EnableNext));
  };
  const QRect footer = FooterRect();
  std::vector<TButtonPlace> places;
  int right = footer.right() + 1 - Around;
  for (const ButtonRow& row : {ButtonRows[4], ButtonRows[3], ButtonRows[2], ButtonRows[1], ButtonRows[0]}) {
    if (!Get(Buttons).Contains(row.button)) continue;
    // On the last page there is nothing to go on to.
    const bool finishes = row.button == abNext && at == last && !Get(Buttons).Contains(abFinish);
    const QString text = CaptionOf(finishes ? abFinish : row.button);
    const int width = std::max(ButtonWidth, TextExtent(text, *Font(), Qt::TextShowMnemonic).width() + 20);
    const bool help = row.button == abHelp;
    places.push_back({row.button, text,
                      QRect(help ? Around : right - width, footer.top() + Around, width, ButtonHeight),
                      enabled(row.button)});
    // Back and next stand together.
    right -= width + (row.button == abNext ? 0 : Gap);
  }
  std::reverse(places.begin(), places.end());
  return places;
}

void TVRXAssist::PaintSteps(TCanvas& canvas) {
  const QRect steps = StepsRect();
  if (steps.isEmpty()) return;
  canvas.FillRect(steps, Get(StepsColor));
  const std::vector<TVRXAssistPage*> pages = Pages();
  const std::vector<QRect> rects = TabRects();
  TFont bold;
  bold.Assign(Font());
  bold.SetStyle({TFontStyle::fsBold});
  for (std::size_t i = 0; i < rects.size(); ++i) {
    const bool front = pages[i] == FrontPage();
    if (front) canvas.FillRect(rects[i], Color());
    const QRect text = rects[i].adjusted(Around, 0, -4, 0);
    if (text.width() <= 0) continue;
    const TFont& font = front ? bold : *Font();
    canvas.TextRect(
        text, Qt::AlignLeft | Qt::AlignVCenter,
        QFontMetrics(ToQFont(font)).elidedText(ShownText(pages[i]->Caption()), Qt::ElideRight, text.width()),
        font, Enabled());
  }
}

void TVRXAssist::PaintHeader(TCanvas& canvas) {
  const QRect header = HeaderRect();
  if (header.isEmpty()) return;
  canvas.FillRect(header, Get(HeaderColor));
  canvas.FillRect(QRect(header.left(), header.bottom(), header.width(), 1), clBtnShadow);
  const auto* page = static_cast<TVRXAssistPage*>(FrontPage());
  if (!page) return;
  QRect room = header.adjusted(Around, 8, -Around, -8);
  const TCustomImageList* images = Get(Images);
  const QImage picture = images ? images->Image(page->Get(TVRXAssistPage::ImageIndex)) : QImage();
  if (!picture.isNull() && picture.width() < room.width()) {
    canvas.Painter().drawImage(room.right() + 1 - picture.width(),
                               header.top() + (header.height() - picture.height()) / 2, picture);
    room.setRight(room.right() - picture.width() - Gap);
  }
  TFont bold;
  bold.Assign(Font());
  bold.SetStyle({TFontStyle::fsBold});
  canvas.TextRect(room, Qt::AlignLeft | Qt::AlignTop, page->Caption(), bold, Enabled());
  canvas.TextRect(room.adjusted(Gap, 0, 0, 0), Qt::AlignLeft | Qt::AlignBottom,
                  page->Get(TVRXAssistPage::Description), *Font(), Enabled());
}

void TVRXAssist::Paint(TCanvas& canvas) {
  canvas.FillRect(ClientRect(), Color());
  PaintSteps(canvas);
  PaintHeader(canvas);
  if (IsDesigning() && Pages().empty())
    PaintDesignHint(canvas, DisplayRect(), *Font(),
                    QObject::tr("No pages yet: New Page in the context menu"));
  const QRect footer = FooterRect();
  if (footer.isEmpty()) return;
  canvas.FillRect(QRect(footer.left(), footer.top(), footer.width(), 1), clBtnShadow);
  for (const TButtonPlace& place : ButtonPlaces())
    PaintButton(canvas, place.rect, place.enabled ? TPartStates() : TPartStates{TPartState::Disabled},
                place.text, Font());
}
