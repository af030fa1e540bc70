#include "vcl/Button.h"

#include <array>

#include "rtl/IntegerConsts.h"
#include "vcl/ActionLook.h"
#include "vcl/Menu.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"

namespace {
constexpr std::array<const char*, 12> ModalResults{"mrNone",  "mrOk",     "mrCancel",   "mrAbort",
                                                   "mrRetry", "mrIgnore", "mrYes",      "mrNo",
                                                   "mrClose", "mrHelp",   "mrTryAgain", "mrContinue"};
}  // namespace

const TTypeInfo& ModalResultType() {
  static const TTypeInfo& info = []() -> const TTypeInfo& {
    static const TTypeInfo type = OrdinalType("TModalResult", INT32_MIN, INT32_MAX);
    RegisterIntegerConsts(type,
                          {[](QByteArrayView ident, std::int64_t& value) {
                             for (std::size_t i = 0; i < ModalResults.size(); ++i)
                               if (ident.compare(QByteArrayView(ModalResults[i]), Qt::CaseInsensitive) == 0)
                                 return value = static_cast<std::int64_t>(i), true;
                             return false;
                           },
                           // Form files hold the number; the name is only an input aid.
                           [](std::int64_t, QByteArray&) { return false; }});
    return type;
  }();
  return info;
}

const TClass& TButton::StaticClass() {
  static const TClass cls(
      DescribeClass<TButton>("TButton", TWinControl::StaticClass())
          .PublishAll(Placing)
          .Published("Cancel", &TButton::Cancel, &TButton::SetCancel, false)
          .Doc(QStringLiteral("Escape presses this button."))
          .Publish("Caption")
          .Published("Default", &TButton::Default, &TButton::SetDefault, false)
          .Doc(QStringLiteral("Enter presses this button."))
          .PublishAll("Enabled", "Font")
          .Published("ModalResult", &TButton::ModalResult, &TButton::SetModalResult, 0)
          .Type(ModalResultType())
          .Doc(QStringLiteral("What a modal form returns when the button is pressed."))
          .PublishAll("ParentFont", Hints, "TabOrder")
          .Publish("TabStop", true)
          .PublishAll("Visible", "OnClick", FocusEvents, KeyEvents, MouseButtonEvents)
          .PublishAll(Placement, Direction, Dragging, Help, Styling, WheelEvents, DragEvents, "Action",
                      "AutoSize", "Color", "DoubleBuffered", "ParentColor", "ParentDoubleBuffered",
                      "PopupMenu", "OnMouseEnter", "OnMouseLeave")
          .Passive<QString>("CommandLinkHint")
          .Passive("DisabledImageIndex", -1)
          .Passive<QString>("DisabledImageName")
          .Passive<TPopupMenu*>("DropDownMenu")
          .Passive("ElevationRequired", false)
          .Passive("HotImageIndex", -1)
          .Passive<QString>("HotImageName")
          .Passive("ImageAlignment", TImageAlignment::iaLeft)
          .Passive("ImageIndex", -1)
          .Passive<TImageMargins*>("ImageMargins")
          .Passive<QString>("ImageName")
          .Passive<TCustomImageList*>("Images")
          .Passive("PressedImageIndex", -1)
          .Passive<QString>("PressedImageName")
          .Passive("SelectedImageIndex", -1)
          .Passive<QString>("SelectedImageName")
          .Passive("Style", TPushButtonStyle::bsPushButton)
          .Passive("StylusHotImageIndex", -1)
          .Passive<QString>("StylusHotImageName")
          .Passive("WordWrap", false)
          .Event("OnDropDownClick")
          .ClassDoc(QStringLiteral("A push button."),
                    "pen line 1.5 brush fill box 2.5 6.5 19 11 3 pen accent 2 path 7 12 17 12"));
  return cls;
}

const TClass& TImageMargins::StaticClass() {
  static const TClass cls(DescribeClass<TImageMargins>("TImageMargins", TPersistent::StaticClass())
                              .Passive("Left", 0)
                              .Passive("Top", 0)
                              .Passive("Right", 0)
                              .Passive("Bottom", 0));
  return cls;
}

QSize TButton::AutoSizeHint() const {
  const QSize text = TextExtent(Caption(), *Font(), Qt::TextShowMnemonic);
  return {text.width() + 20, text.height() + 10};
}

TButton::TButton(TComponent* owner) : TWinControl(owner) {
  captionFollowsName_ = true;
  tabStop_ = true;
  SetBounds(0, 0, 75, 25);
}

void TButton::Paint(TCanvas& canvas) {
  const TActionLook look = LookOf(*this);
  TPartStates states;
  if (!look.enabled) states.Include(TPartState::Disabled);
  if (default_) states.Include(TPartState::Default);
  PaintButton(canvas, ClientRect(), states, look.caption, Font());
}
