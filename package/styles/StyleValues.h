// Values of styles as the editor shows and edits them.
#pragma once
#include "library/styles/Styles.h"
#include "package/styles/StyleRegistry.h"

// What a value is edited with.
enum class TVRXStyleEditor : std::uint8_t {
  None,
  ColorCombo,
  Spin,
  Edit,
  ListCombo,
  CalendarCombo,
  FloatSpin,
  CheckCombo,
  PictureChooser
};
TVRXStyleEditor VRXStyleEditorOf(TTypeKind kind, const QString& typeName);
// Whether a property is an object with properties of its own that are shown below it.
bool VRXIsExpandable(const TVRXPropListItem& item);

// Null for a value that is not stored.
QString VRXDisplayValue(const TVRXStyleValue* value, TTypeKind kind, const QString& typeName,
                        const TTypeInfo* type);
// "[fsBold,fsItalic]": what is checked, in the order of the type.
QString VRXSetText(const QStringList& elements, const QStringList& checked);

// Children of a style: with children before those without, then "Base" and "Custom", then by name.
struct TVRXStyleSortKey {
  QString Name;
  bool HasChildren = false;
};
bool VRXStyleBefore(const TVRXStyleSortKey& a, const TVRXStyleSortKey& b);
// Paths of the property view: by their depth, then by name.
bool VRXPropertyPathBefore(const QString& a, const QString& b);
// An empty filter shows everything.
bool VRXMatchesFilter(const QString& name, const QString& mask);
