#include "package/component_editors/pVRXCEForms.h"

#include "dclstd/LinesDialog.h"
#include "dclstd/PictureEditor.h"
#include "designintf/ComponentVerbs.h"
#include "library_design/DateTimeFormatDialog.h"
#include "library_design/FillDialog.h"
#include "library_design/Font3DDialog.h"
#include "library_design/FontDialogs.h"
#include "library_design/ImageListDialogs.h"
#include "library_design/LookDialogs.h"
#include "library_design/ValueDialogs.h"
#include "package/component_editors/pVRXCEMain.h"
#include "package/experts/pVRXHideNonVC.h"
#include "package/property_editors/pVRXCPGetMain.h"

namespace {
// Asks for an image list of the form and, where the component has a place for one, a picture in it.
template <class C>
VerbOf<C> ImageListVerb(const char* caption = "ImageList") {
  return {caption, [](C& c, IDesigner& designer) { return VRXCPGetImageListOf(c, "ImageList", designer); }};
}
// A colour that the component publishes.
template <class C>
VerbOf<C> ColorVerb(const char* property) {
  return {property, [property](C& c) {
            const TPropInfo& prop = c.ClassType().GetProp(property);
            TColor color = TColor(static_cast<std::uint32_t>(GetOrdProp(c, prop)));
            if (!VRXCPGetColorCP(color)) return false;
            SetOrdProp(c, prop, static_cast<std::int64_t>(color));
            return true;
          }};
}
template <class C>
VerbOf<C> FillVerb() {
  return {"FillObject", [](C& c) { return VRXCPGetFillObject(*c.FillObject(), c.Get(C::ImageList)); }};
}
bool IsLabel(const TVRXClock& clock) {
  return clock.ClassType().InheritsFrom(TVRXCustomLabel::StaticClass());
}
}  // namespace

const TVRXClockComponentEditor::Verbs TVRXClockComponentEditor::Table = {
    {"Bevel", Launch(&TVRXClock::Bevel, VRXCPGetBevel)},
    {"Digital", Launch(&TVRXClock::Digital, VRXCPGetLED)},
    Flag("DigitalOnly"),
    {"CustomDateTimeFormat",
     [](TVRXClock& c) {
       QString format = c.Get(TVRXClock::CustomDateTimeFormat);
       if (!VRXCPGetDateTimeFormat(format)) return false;
       c.SetDateTimeFormat(format);
       return true;
     }},
    // A clock that is a label has room for one more, which does nothing.
    Verb("").When(IsLabel),
};

const TVRXFillComponentEditor::Verbs TVRXFillComponentEditor::Table = {
    ImageListVerb<TVRXFill>(),
    FillVerb<TVRXFill>(),
    {"Bevel", Launch(&TVRXFill::Bevel, VRXCPGetBevel)},
    {"Caption", Launch(&TVRXFill::Caption, VRXCPGetVRXCaption, true)},
    ColorVerb<TVRXFill>("Color"),
};

namespace {
using F = TVRXCustomFormFill;
bool IsFormFill(const F& f) { return As<TVRXFormFill>(&f); }
bool IsOther(const F& f) { return !IsFormFill(f); }
VerbOf<F> FormImages() { return ImageListVerb<F>(); }
}  // namespace
const TVRXFormFillComponentEditor::Verbs TVRXFormFillComponentEditor::Table = {
    Verb("FillObject",
         [](F& f) { return VRXCPGetFillObject(*As<TVRXFormFill>(&f)->FillObject(), f.Get(F::ImageList)); })
        .When(IsFormFill),
    FormImages().When(IsOther),
    Flag("DefaultFill"),
    Flag("Enabled"),
    FormImages().When(IsFormFill),
};

const TVRXFormStylerComponentEditor::Verbs TVRXFormStylerComponentEditor::Table = {
    Flag("Enabled"),
    {"Font", Launch(&TVRXFormStyler::Font, VRXCPGetFont)},
    {"Font3D", Launch(&TVRXFormStyler::Font3D, VRXCPGetFont3D)},
    ElementFlag("AdjustRect", "Options", 0),
    ElementFlag("UseDefaultFont", "Options", 1),
    ElementFlag("InactiveGradient", "Options", 3),
    ElementFlag("DrawCaptionEvent", "Options", 4),
    ElementFlag("UseFormCaption", "Options", 5),
};

const TVRXShapeHintComponentEditor::Verbs TVRXShapeHintComponentEditor::Table = {
    ColorVerb<TVRXCustomShapeHint>("BorderColor"),
    ColorVerb<TVRXCustomShapeHint>("Color"),
    Flag("Enabled"),
    {"Font", Launch(&TVRXCustomShapeHint::Font, VRXCPGetFont)},
    {"Font3D", Launch(&TVRXCustomShapeHint::Font3D, VRXCPGetFont3D)},
    {"Shadow", Launch(&TVRXCustomShapeHint::Shadow, VRXCPGetShadow)},
};

const TVRXShadowComponentEditor::Verbs TVRXShadowComponentEditor::Table = {
    {"Shadow", Launch(&TVRXFormShadow::Shadow, VRXCPGetShadow)},
    Flag("ShowInActive ", "ShowInActive"),
};

const TVRXFormShapeComponentEditor::Verbs TVRXFormShapeComponentEditor::Table = {
    {"Refresh", [](TVRXFormShape& s) { s.PaintBorder(); }},
};

const TVRXScrollTextComponentEditor::Verbs TVRXScrollTextComponentEditor::Table = {
    {"Bevel", Launch(&TVRXScrollText::Bevel, VRXCPGetBevel)},
    {"Font", Launch(&TVRXScrollText::Font, VRXCPGetFont)},
    {"Font3D", Launch(&TVRXScrollText::Font3D, VRXCPGetFont3D)},
    Flag("Transparent"),
    Flag("Scroll"),
    {"Lines", Launch(&TVRXScrollText::Lines, EditLines)},
};

namespace {
template <class C>
VerbOf<C> FontFxVerb() {
  return {"FontFX", Launch(&C::FontFX, VRXCPGetFontFx)};
}
template <class C>
VerbOf<C> FontVerb() {
  return {"Font", Launch(&C::Font, VRXCPGetFont)};
}
}  // namespace
const TVRXWndButtonShapeComponentEditor::Verbs TVRXWndButtonShapeComponentEditor::Table = {
    "OnClick...",
    ImageListVerb<TVRXWndButtonShape>(),
    Flag("Transparent"),
    FontFxVerb<TVRXWndButtonShape>(),
    FontVerb<TVRXWndButtonShape>(),
};
const TVRXPanelShapeComponentEditor::Verbs TVRXPanelShapeComponentEditor::Table = {
    ImageListVerb<TVRXPanelShape>(),
    Flag("Transparent"),
    FontFxVerb<TVRXPanelShape>(),
    FontVerb<TVRXPanelShape>(),
};

namespace {
using G = TVRXGraphicLabel;
bool IsBird(const G& g) { return g.Get(G::Perspective) == TVRXPerspective::tpBird; }
}  // namespace
const TVRXGraphicLabelComponentEditor::Verbs TVRXGraphicLabelComponentEditor::Table = {
    {"Editor", VRXCPGetGraphicLabel},
    {"-"},
    {"Wave", [](G& g) { g.SetTransform(TVRXTransform::tmWave); }},
    {"Normal", [](G& g) { g.SetTransform(TVRXTransform::tmNone); }},
    BracketFlag("AutoSize"),
    FillVerb<G>(),
    FontVerb<G>(),
    FontFxVerb<G>(),
    // Unlike with lights the caption names what is, not what choosing it sets.
    Verb([](const G& g) { return IsBird(g) ? "Perspective (tpBird)" : "Perspective (tpFrog)"; },
         [](G& g) { g.SetPerspective(IsBird(g) ? TVRXPerspective::tpFrog : TVRXPerspective::tpBird); })
        .When([](const G& g) { return g.Get(G::TransAttr).Contains(TVRXTransAttr::taPerspective); }),
};

const TVRXCustomLImageComponentEditor::Verbs TVRXCustomLImageComponentEditor::Table = {
    ImageListVerb<TVRXCustomLImage>(),
    {"Bitmap", Launch(&TVRXCustomLImage::Bitmap, EditPicture)},
    Flag("AutoSize"),
    Flag("Stretch"),
    Flag("Transparent"),
};
const TVRXAniCtrlComponentEditor::Verbs TVRXAniCtrlComponentEditor::Table = {Flag("Animate")};

const TVRXLabelComponentEditor::Verbs TVRXLabelComponentEditor::Table = {
    CaptionVerb<TVRXCustomLabel>(),
    {"Font", Launch(&TVRXCustomLabel::Font, VRXCPGetFont)},
    {"Font3D", Launch(&TVRXCustomLabel::Font3D, VRXCPGetFont3D)},
    {"Bevel", Launch(&TVRXCustomLabel::Bevel, VRXCPGetBevel)},
    {"Alignment", [](TVRXCustomLabel& label) { return VRXCPSelectValueDialog(label, "Alignment"); }},
    Flag("AutoSize"),
    Flag("Transparent"),
    Flag("WordWrap"),
};
const TVRXLabelFillComponentEditor::Verbs TVRXLabelFillComponentEditor::Table = {
    FillVerb<TVRXCustomLabelFill>(),
    ColorVerb<TVRXCustomLabelFill>("BrushBackColor"),
    ImageListVerb<TVRXCustomLabelFill>(),
};

const TVRXHideNonVCEditor::Verbs TVRXHideNonVCEditor::Table = {{"Editor", [](TVRXHideNonVC&) {}}};
void TVRXHideNonVCEditor::ExecuteVerb(int index) {
  if (auto* component = As<TVRXHideNonVC>(GetComponent()); component && GetDesigner() && index == 0)
    TVRXHideNonVCfrm::Open(*component, *GetDesigner(), RegistryOf(*this));
  TVerbEditor::ExecuteVerb(index);
}
