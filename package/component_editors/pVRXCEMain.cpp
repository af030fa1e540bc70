#include "package/component_editors/pVRXCEMain.h"

#include "designintf/CustomColors.h"
#include "library_design/ColorDialogs.h"
#include "library_design/FontDialogs.h"
#include "library_design/ImageListDialogs.h"
#include "library_design/LookDialogs.h"
#include "package/property_editors/pVRXCPGetMain.h"
#include "package/property_editors/pVRXPeMain.h"

bool VRXCPGetColorCP(TColor& color) {
  QStringList custom = LoadIDECustomColors();
  if (!VRXCPGetColor(color, custom)) return false;
  SaveIDECustomColors(custom);
  return true;
}

const TVRXLEDLabelComponentEditor::Verbs TVRXLEDLabelComponentEditor::Table = {
    CaptionVerb<TVRXLEDCustomLabel>().DataAware("[DB] No caption available"),
    Flag("AutoSize"),
    {"Bevel", Launch(&TVRXLEDCustomLabel::Bevel, VRXCPGetBevel)},
    {"LED", Launch(&TVRXLEDCustomLabel::LED, VRXCPGetLED)},
};
bool TVRXLEDLabelComponentEditor::EditProperty(const TPropertyEditor& property) const {
  return property.GetName() == QStringLiteral("LED");
}

const TVRXBaseGraphicButtonComponentEditor::Verbs TVRXBaseGraphicButtonComponentEditor::Table = {
    CaptionVerb<TControl>(),
    {"Font", [](TControl& control) { return VRXCPGetFont(*control.Font()); }},
    Flag("Down"),
    Flag("Enabled"),
};

namespace {
using M = TVRXMMButton;
bool Is3D(const TControl& control) { return dynamic_cast<const TVRXCustom3DButton*>(&control) != nullptr; }
bool IsMM(const TControl& control) { return dynamic_cast<const M*>(&control) != nullptr; }
// The list that has pictures; null when there is none to choose from.
TCustomImageList* FilledList(const TControl& control) {
  TCustomImageList* list = static_cast<const M&>(control).Get(M::ButtonFaceImageList);
  for (int i = 1; i <= VRXIMLListCount(list); ++i)
    if (VRXIMLIsValidItem(list, i, 0)) return list;
  return nullptr;
}
// The list alone is taken: which picture stands for which state is chosen in its own editor.
template <class C>
bool ChooseList(C& component, const TKept<TCustomImageList*>& property, IDesigner& designer) {
  TCustomImageList* list = component.Get(property);
  const TCustomImageList* const before = list;
  if (!VRXCPGetIMLExt(designer, list) || list == before) return false;
  component.Set(property, list);
  return true;
}
}  // namespace

const TVRXExtGraphicButtonComponentEditor::Verbs TVRXExtGraphicButtonComponentEditor::Table = {
    Verb("Button-Editor",
         [](TControl& c) { return VRXCPGetButtonFace3D(static_cast<TVRXCustom3DButton&>(c)); })
        .When(Is3D),
    Verb([](const TControl& c) { return FilledList(c) ? "ButtonFace" : "Select ButtonFace"; },
         [](TControl& c, IDesigner& designer) {
           TCustomImageList* const list = FilledList(c);
           return list ? VRXCPGetButtonFaceMM(c, list)
                       : ChooseList(static_cast<M&>(c), M::ButtonFaceImageList, designer);
         })
        .When(IsMM),
};

namespace {
using FC = TVRXMMButtonFaceController;
}  // namespace
const TVRXButtonFaceControllerEditor::Verbs TVRXButtonFaceControllerEditor::Table = {
    Verb("ButtonFace-Editor", [](FC& c) { return VRXCPGetButtonFaceMM(c, c.Get(FC::ButtonFaceImageList)); })
        .When([](const FC& c) { return c.Get(FC::ButtonFaceImageList) != nullptr; }),
    {"Select ButtonFaceImageList",
     [](FC& c, IDesigner& designer) { return ChooseList(c, FC::ButtonFaceImageList, designer); }},
};

const TVRXFaceControllerEditor::Verbs TVRXFaceControllerEditor::Table = {
    // The designer hears of what the dialog assigns from the component itself.
    {"State settings",
     [](TVRXFaceController& c) {
       VRXCPGetFaceController(c);
       return false;
     }},
};

namespace {
using S = TVRXBaseShape;
bool IsRectangle(const S& s) { return s.Get(S::Shape) == TVRXShapeType::stRectangle; }
bool HasTeeth(const S& s) { return s.Get(S::DrawTeeth); }
bool HasShapeFill(const S& s) { return s.Get(S::FillStyle) == TVRXShapeFillStyle::sfShapeFill; }
bool EditFill(S& s) { return VRXCPGetShapeFill(*s.ShapeFill(), s.Get(S::ShapeFillImageList)); }

// Takes over what a chooser returns; whether that is something else.
template <class C, class T>
bool Choose(C& component, const TKept<T>& property, T (*chooser)(T)) {
  const T before = component.Get(property), now = chooser(before);
  component.Set(property, now);
  return now != before;
}
}  // namespace

const TVRXCustomShapeComponentEditor::Verbs TVRXCustomShapeComponentEditor::Table = {
    Verb("Teeth", Launch(&S::Teeth, VRXCPGetTeeth)).When(HasTeeth),
    Verb("Shape", [](S& s) { return Choose(s, S::Shape, VRXCPGetShape); }).When([](const S& s) {
      return !HasTeeth(s);
    }),
    {"Brush", Launch(&S::Brush, VRXCPGetBrush)},
    {"Caption", Launch(&S::Caption, VRXCPGetVRXCaption, true)},
    {"Shadow", Launch(&S::Shadow, VRXCPGetShadow)},
    Flag("Square"),
    // A toothed side has neither, unless it is a rectangle's.
    Verb([](const S& s) { return HasShapeFill(s) ? "ShapeFill" : "Bevel"; },
         [](S& s) { return HasShapeFill(s) ? EditFill(s) : VRXCPGetSimpleBevel(*s.Bevel()); })
        .When([](const S& s) { return IsRectangle(s) || !HasTeeth(s); }),
    Verb("ShapeFill", EditFill).When(IsRectangle),
};

namespace {
VerbOf<TVRXCustomSwitch> ColorVerb(const char* caption, int state) {
  return {caption, [state](TVRXCustomSwitch& s) {
            TColor color = s.StateColor(state);
            if (!VRXCPGetColorCP(color)) return false;
            s.SetStateColor(state, color);
            return true;
          }};
}
}  // namespace

const TVRXSwitchComponentEditor::Verbs TVRXSwitchComponentEditor::Table = {
    Flag("Checked").DataAware("[DB] Option not available"),
    {"Bevel", Launch(&TVRXCustomSwitch::Bevel, VRXCPGetBevel)},
    {"Caption Checked", Launch(&TVRXCustomSwitch::CaptionChecked, VRXCPGetVRXCaption, true)},
    {"Caption UnChecked", Launch(&TVRXCustomSwitch::CaptionUnChecked, VRXCPGetVRXCaption, true)},
    ColorVerb("Color Checked", 0),
    ColorVerb("Color UnChecked", 1),
    Flag("Enabled"),
};

using L = TVRXCustomLight;
const TVRXLightComponentEditor::Verbs TVRXLightComponentEditor::Table = {
    Verb("Active", [](L& l) { l.Set(L::Active, !l.Get(L::Active)); }).DataAware("[DB] Not available"),
    {"Bevel", Launch(&L::Bevel, VRXCPGetBevel)},
    {"LightColor", [](L& l) { return Choose(l, L::LightColor, VRXCPGetLightColor); }},
    // The caption names the style that it sets.
    {[](const L& l) {
       return l.Get(L::Style) == TVRXLightStyle::ltRectangle ? "Style: ltRound" : "Style: ltRectangle";
     },
     [](L& l) {
       using enum TVRXLightStyle;
       l.Set(L::Style, l.Get(L::Style) == ltRectangle ? ltRound : ltRectangle);
     }},
};

namespace {
using T = TVRXTechnicalLine;
// An end with the arrow that points out of the line there.
VerbOf<T> Arrow(const char* caption, TVRXLineType type, TVRXSignPlaces place, TVRXLineSign sign) {
  return {caption, [=](T& line) {
            const TUpdateLock lock(line);
            line.Set(T::LineType, type);
            line.Set(T::SignPlaces, place);
            line.Set(place == TVRXSignPlaces::spStart ? T::LineStart : T::LineEnding, sign);
          }};
}
}  // namespace

const TVRXTechnicalLineComponentEditor::Verbs TVRXTechnicalLineComponentEditor::Table = {
    BracketFlag("Arrowed"),
    BracketFlag("Shadowed", "ShadowVisible"),
    Arrow("Arrow Right", TVRXLineType::ltHorizontal, TVRXSignPlaces::spEnd, TVRXLineSign::lsArrowRight),
    Arrow("Arrow Left", TVRXLineType::ltHorizontal, TVRXSignPlaces::spStart, TVRXLineSign::lsArrowLeft),
    Arrow("Arrow Up", TVRXLineType::ltVertical, TVRXSignPlaces::spStart, TVRXLineSign::lsArrowUp),
    Arrow("Arrow Down", TVRXLineType::ltVertical, TVRXSignPlaces::spEnd, TVRXLineSign::lsArrowDown),
};

QString TVRXFilterComponentEditor::GetVerb(int index) const {
  return index == 0 ? QStringLiteral("Edit Filters") : QString();
}
void TVRXFilterComponentEditor::ExecuteVerb(int index) {
  if (index == 0) Edit();
}
bool TVRXFilterComponentEditor::EditProperty(const TPropertyEditor& property) const {
  return property.GetName() == QStringLiteral("Filter");
}
