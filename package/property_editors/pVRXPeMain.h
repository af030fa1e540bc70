// Property editors of the library's value objects. Each edits a copy in a modal dialog and writes it back
// only when the user confirms.
#pragma once
#include "library/values/Bevels.h"
#include "library/values/Caption.h"
#include "library/values/Fill.h"
#include "library/values/RegionMask.h"
#include "library/values/Shadow.h"
#include "library/values/Teeth.h"
#include "library_design/CopyProperty.h"

class TCustomImageList;
class TComponent;
class TVRXRegExprForm;

// The pictures of a multimedia button, or of a controller of such buttons, by state. Says why when there is
// nothing to choose from. Whether another face was taken over.
bool VRXCPGetButtonFaceMM(TComponent& component, TCustomImageList* images);

class TVRXLEDProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};

class TVRXCaptionProperty : public TCopyProperty<TVRXCaption> {
  using TCopyProperty::TCopyProperty;
  bool Launch(TVRXCaption& copy) override;
};

class TVRXRegionMaskProperty : public TCopyProperty<TVRXRegionMask, TCopyEditing::DialogOnly> {
  using TCopyProperty::TCopyProperty;
  bool Launch(TVRXRegionMask& copy) override;
};

// The inspector shows what the object says of itself.
template <class Value>
class TSummaryProperty : public TCopyProperty<Value> {
 public:
  using TCopyProperty<Value>::TCopyProperty;
  QString GetValue() const override {
    const auto* value = As<Value>(this->GetObjectValue());
    return value ? value->Description() : QString();
  }
};

class TVRXShadowProperty : public TSummaryProperty<TVRXShadow> {
  using TSummaryProperty::TSummaryProperty;
  bool Launch(TVRXShadow& copy) override;
};

class TVRXShapeFillProperty : public TSummaryProperty<TVRXShapeFill> {
  using TSummaryProperty::TSummaryProperty;
  bool Launch(TVRXShapeFill& copy) override;
};

class TVRXSimpleBevelProperty : public TCopyProperty<TVRXSimpleBevel> {
  using TCopyProperty::TCopyProperty;
  bool Launch(TVRXSimpleBevel& copy) override;
};

class TVRXTeethProperty : public TCopyProperty<TVRXTeeth> {
  using TCopyProperty::TCopyProperty;
  bool Launch(TVRXTeeth& copy) override;
};

// Enumerations with a dialog that shows them. What it returns is written, chosen or not.
class TVRXPictureEnumProperty : public TEnumProperty {
 public:
  using TEnumProperty::TEnumProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;

 protected:
  virtual std::int64_t Pick(std::int64_t value) = 0;
};
class TVRXShapeProperty : public TVRXPictureEnumProperty {
  using TVRXPictureEnumProperty::TVRXPictureEnumProperty;
  std::int64_t Pick(std::int64_t value) override;
};
class TVRXLightColorProperty : public TVRXPictureEnumProperty {
  using TVRXPictureEnumProperty::TVRXPictureEnumProperty;
  std::int64_t Pick(std::int64_t value) override;
};

// The face of a button; opens the editor that belongs to the kind of button.
class TVRXButtonFaceProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};

// Lists: the dialog works on the object itself, which is then told to be changed.
class TVRXListProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;

 protected:
  virtual bool Launch(TPersistent& list) = 0;
};
class TVRXDateListProperty : public TVRXListProperty {
  using TVRXListProperty::TVRXListProperty;
  bool Launch(TPersistent& list) override;
};
class TVRXPointListProperty : public TVRXListProperty {
  using TVRXListProperty::TVRXListProperty;
  bool Launch(TPersistent& list) override;
};

// The filter of a file dialog. A text that is shown as an object: it is edited in its dialog alone.
class TVRXFilterProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};

// A regular expression. The form lives as long as the editor, from its first use on.
class TVRXVldRegExprProperty : public TPropertyEditor {
 public:
  TVRXVldRegExprProperty(IDesigner* designer, TInstProps props);
  ~TVRXVldRegExprProperty() override;
  TPropertyAttributes GetAttributes() const override;
  QString GetValue() const override;
  void SetValue(const QString& value) override;
  void Edit() override;

 private:
  std::unique_ptr<TVRXRegExprForm> form_;
};

// Names and values of a control's items, both in one dialog.
class TVRXValueListProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};
// Which of the items is chosen.
class TVRXValueListValueProperty : public TStringProperty {
 public:
  using TStringProperty::TStringProperty;
  TPropertyAttributes GetAttributes() const override;
  void GetValues(const TGetStrProc& proc) const override;
};

// Which page of a wizard or of a notebook is meant.
class TVRXAssistPageProperty : public TComponentProperty {
 public:
  using TComponentProperty::TComponentProperty;
  TPropertyAttributes GetAttributes() const override;
  void GetValues(const TGetStrProc& proc) const override;
};
class TVRXNoteBookPageProperty : public TComponentProperty {
 public:
  using TComponentProperty::TComponentProperty;
  TPropertyAttributes GetAttributes() const override;
  void GetValues(const TGetStrProc& proc) const override;
};

// The title of a panel: expands only.
class TVRXPanelCaptionProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
};
