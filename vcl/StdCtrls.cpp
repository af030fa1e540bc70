#include "vcl/StdCtrls.h"

#include <QApplication>
#include <QStyleOptionButton>

#include "rtl/IntegerConsts.h"
#include "vcl/Form.h"
#include "vcl/FormColors.h"
#include "vcl/ShownText.h"

const TClass& TLabel::StaticClass() {
  static const TClass cls(
      DescribeClass<TLabel>("TLabel", TGraphicControl::StaticClass())
          .Publish("Align")
          .Published("Alignment", &TLabel::Alignment, &TLabel::SetAlignment, TAlignment::taLeftJustify)
          .Publish("Anchors")
          .Publish("AutoSize", true)
          .PublishAll("Caption", "Color", "Enabled")
          .Published("FocusControl", &TLabel::FocusControl, &TLabel::SetFocusControl)
          .Doc(QStringLiteral("The control that the label's accelerator moves the focus to."))
          .PublishAll("Font", "ParentColor", "ParentFont", "ParentShowHint")
          .Published("ShowAccelChar", &TLabel::ShowAccelChar, &TLabel::SetShowAccelChar, true)
          .Publish("ShowHint")
          .Published("Transparent", &TLabel::Transparent, &TLabel::SetTransparent, true)
          .Doc(QStringLiteral("Lets what is behind the label show through."))
          .Published("Layout", &TLabel::Layout, &TLabel::SetLayout, TTextLayout::tlTop)
          .Publish("Visible")
          .Published("WordWrap", &TLabel::WordWrap, &TLabel::SetWordWrap, false)
          .PublishAll("OnClick", "OnDblClick", "OnMouseDown", "OnMouseEnter", "OnMouseLeave", "OnMouseMove",
                      "OnMouseUp")
          .ClassDoc(QStringLiteral("A text on the form.")));
  return cls;
}

TLabel::TLabel(TComponent* owner) : TGraphicControl(owner) {
  captionFollowsName_ = true;
  autoSize_ = true;
  SetBounds(0, 0, 65, 17);
}

int TLabel::TextFlags() const {
  static constexpr int horizontal[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
  static constexpr int vertical[] = {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};
  return horizontal[static_cast<int>(alignment_)] | vertical[static_cast<int>(layout_)] |
         (wordWrap_ ? Qt::TextWordWrap : 0) | (showAccelChar_ ? Qt::TextShowMnemonic : 0);
}

QSize TLabel::AutoSizeHint() const {
  const QSize text = TextExtent(Caption().isEmpty() ? QStringLiteral(" ") : Caption(), *Font(),
                                wordWrap_ ? int{Qt::TextWordWrap} : 0, wordWrap_ ? Width() : 0);
  return {wordWrap_ ? Width() : Caption().isEmpty() ? 0 : text.width(), text.height()};
}

// In forms whose width is the client's, anchors alone decide which edge stays.
bool TLabel::GrowsToTheLeft() const {
  const TControl* top = this;
  while (top->Parent()) top = top->Parent();
  const auto* form = As<TForm>(top);
  if (form && form->SizeIsClient())
    return Anchors().Contains(TAnchorKind::akRight) && !Anchors().Contains(TAnchorKind::akLeft);
  return alignment_ == TAlignment::taRightJustify;
}

void TLabel::DoChanged() {
  measured_.reset();
  TGraphicControl::DoChanged();
}

QRect TLabel::PaintExtent() const {
  const QRect own = TGraphicControl::PaintExtent();
  if (!AutoSize() || Align() != TAlign::alNone) return own;
  if (!measured_ || measured_->width != Width()) measured_ = {Width(), AutoSizeHint()};
  const QSize text = measured_->text.expandedTo(own.size());
  const int more = text.width() - own.width();
  const int left = alignment_ == TAlignment::taRightJustify ? -more
                   : alignment_ == TAlignment::taCenter     ? -more / 2
                                                            : 0;
  return {left, 0, text.width(), text.height()};
}

void TLabel::Paint(TCanvas& canvas) {
  const QRect area = PaintExtent();
  if (!transparent_) canvas.FillRect(area, Color());
  canvas.TextRect(area, TextFlags(), Caption(), *Font(), Enabled());
}

namespace {
constexpr std::array<const char*, 12> ModalResults{"mrNone",  "mrOk",     "mrCancel",   "mrAbort",
                                                   "mrRetry", "mrIgnore", "mrYes",      "mrNo",
                                                   "mrClose", "mrHelp",   "mrTryAgain", "mrContinue"};
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
}  // namespace

const TClass& TButton::StaticClass() {
  static const TClass cls(DescribeClass<TButton>("TButton", TWinControl::StaticClass())
                              .PublishAll("Align", "Anchors")
                              .Published("Cancel", &TButton::Cancel, &TButton::SetCancel, false)
                              .Doc(QStringLiteral("Escape presses this button."))
                              .Publish("Caption")
                              .Published("Default", &TButton::Default, &TButton::SetDefault, false)
                              .Doc(QStringLiteral("Enter presses this button."))
                              .PublishAll("Enabled", "Font")
                              .Published("ModalResult", &TButton::ModalResult, &TButton::SetModalResult, 0)
                              .Type(ModalResultType())
                              .Doc(QStringLiteral("What a modal form returns when the button is pressed."))
                              .PublishAll("ParentFont", "ParentShowHint", "ShowHint", "TabOrder")
                              .Publish("TabStop", true)
                              .PublishAll("Visible", "OnClick", "OnEnter", "OnExit", "OnKeyDown",
                                          "OnKeyPress", "OnKeyUp", "OnMouseDown", "OnMouseMove", "OnMouseUp")
                              .ClassDoc(QStringLiteral("A push button.")));
  return cls;
}

TButton::TButton(TComponent* owner) : TWinControl(owner) {
  captionFollowsName_ = true;
  tabStop_ = true;
  SetBounds(0, 0, 75, 25);
}

void TButton::Paint(TCanvas& canvas) {
  QStyleOptionButton option;
  option.rect = ClientRect();
  option.palette = FormPalette();
  option.palette.setColor(QPalette::ButtonText, ToQColor(Enabled() ? Font()->Color() : clGrayText));
  option.fontMetrics = QFontMetrics(ToQFont(*Font()));
  option.text = ShownText(Caption());
  option.state = Enabled() ? QStyle::State_Enabled | QStyle::State_Raised : QStyle::State_Raised;
  if (default_) option.features |= QStyleOptionButton::DefaultButton;
  canvas.Painter().setFont(ToQFont(*Font()));
  QApplication::style()->drawControl(QStyle::CE_PushButton, &option, &canvas.Painter());
}
