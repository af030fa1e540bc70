// A wizard: pages that follow each other, the list of them, a header that says what the page is about, and
// the buttons that lead on.
#pragma once
#include "vcl/PageBook.h"

class TVRXAssist;

enum class TVRXAssistButton : std::uint8_t { abHelp, abBack, abNext, abFinish, abCancel };
VRX_ENUM(TVRXAssistButton, {"abHelp", "abBack", "abNext", "abFinish", "abCancel"})
using TVRXAssistButtons = TSet<TVRXAssistButton>;
VRX_SET(TVRXAssistButtons, TVRXAssistButton)

class TVRXAssistPage : public TBookPage {
  VRX_CLASS(TVRXAssistPage)
 public:
  using TBookPage::TBookPage;
  // Below the title in the header.
  static constexpr TKept<QString> Description{"Description"};
  static constexpr TKept<int> ImageIndex{"ImageIndex", -1};
  // Of this page alone; the others keep theirs.
  static constexpr TKept<bool> EnableBack{"EnableBack", true};
  static constexpr TKept<bool> EnableNext{"EnableNext", true};

  // Null for a page that stands anywhere else.
  TVRXAssist* AssistControl() const;
  void SetAssistControl(TVRXAssist* assist);
};

class TVRXAssist : public TPageBook {
  VRX_CLASS(TVRXAssist)
 public:
  explicit TVRXAssist(TComponent* owner);
  static constexpr TKept<TVRXAssistButtons> Buttons{
      "Buttons", {TVRXAssistButton::abBack, TVRXAssistButton::abNext, TVRXAssistButton::abCancel}};
  static constexpr TKept<TColor> HeaderColor{"HeaderColor", clWindow};
  static constexpr TKept<bool> ShowHeader{"ShowHeader", true};
  // The titles of all pages, the one in front marked.
  static constexpr TKept<bool> ShowSteps{"ShowSteps", true};
  static constexpr TKept<TColor> StepsColor{"StepsColor", clBtnShadow};
  static constexpr TKept<int> StepsWidth{"StepsWidth", 136};

  std::vector<TVRXAssistPage*> Pages() const { return PagesOf<TVRXAssistPage>(*this); }
  TVRXAssistPage* ActivePage() const { return static_cast<TVRXAssistPage*>(active_); }
  void SetActivePage(TVRXAssistPage* v) { SetActiveBookPage(v); }

  // The titles, which lead to the pages as tabs do.
  std::vector<QRect> TabRects() const override;
  QMargins Insets() const override;
  void Paint(TCanvas& canvas) override;

  // Of the buttons from the left to the right.
  struct TButtonPlace {
    TVRXAssistButton button;
    QString text;
    QRect rect;
    bool enabled;
  };
  std::vector<TButtonPlace> ButtonPlaces() const;

 protected:
  // The titles have all of the left side.
  std::array<QRect, 2> ArrowRects() const override { return {}; }
  bool TakesAsPage(const TClass& cls) const override {
    return cls.InheritsFrom(TVRXAssistPage::StaticClass());
  }

 private:
  QRect StepsRect() const;
  QRect HeaderRect() const;
  QRect FooterRect() const;
  void PaintSteps(TCanvas& canvas);
  void PaintHeader(TCanvas& canvas);
  QString CaptionOf(TVRXAssistButton button) const;
};
