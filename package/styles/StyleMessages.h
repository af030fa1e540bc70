// What the style editor says, in one table: text, kind of box and buttons.
#pragma once
#include <QString>
#include <functional>
#include <optional>

class QWidget;

inline constexpr const char* VRXStyleEditorTitle = "Orlenvo-Kit Style Editor";
inline constexpr const char* VRXDefaultStyle = "(Default)";

enum class TVRXStyleMessage : std::uint8_t {
  CannotMoveDefault,
  CannotDeleteDefault,
  SubstyleExists,    // name
  PropertyIncluded,  // name
  NoSuchProperty,    // class, property path; asks
  NoComponentClass,
  UndefinedValue,
  OwnSubstyle,
  StateHasNoSubstyles,
  StateHasNoStateAncestors,
  SameNameAbove,
  NotInherited,  // name, target's name, and again as classes
  InvalidName,
  NothingSelected,
  DeleteStyle,     // name; asks
  DeleteProperty,  // name; asks
  NoSuchClass,     // name
  NoClassSelected,
  ClearBitmap,  // asks
};
constexpr int VRXStyleMessageCount = 19;

enum class TVRXStyleBoxIcon : std::uint8_t { Warning, Question };
enum class TVRXStyleBoxButtons : std::uint8_t { Ok, YesNo };

struct TVRXStyleBox {
  TVRXStyleMessage Message = TVRXStyleMessage::InvalidName;
  TVRXStyleBoxIcon Icon = TVRXStyleBoxIcon::Warning;
  TVRXStyleBoxButtons Buttons = TVRXStyleBoxButtons::Ok;
  QString Text;  // complete
};
TVRXStyleBox VRXStyleBox(TVRXStyleMessage message, const QStringList& names = {});

// Shows a box; true for Yes.
using TVRXShowStyleBox = std::function<bool(const TVRXStyleBox&)>;
// In front of a window.
TVRXShowStyleBox VRXStyleBoxesOf(QWidget* parent);
