// Fields with a button beside them: for anything, for a file, for a folder.
#pragma once
#include "vcl/Dialogs.h"
#include "vcl/Edit.h"
#include "vcl/Picture.h"

enum class TFileDialogKind : std::uint8_t { dkOpen, dkSave, dkPictureOpen, dkPictureSave };
VRX_TYPE_INFO(TFileDialogKind,
              EnumType("TDialogKind", {"dkOpen", "dkSave", "dkPictureOpen", "dkPictureSave"}))

class TCustomEditButton : public TCustomEdit {
  VRX_CLASS(TCustomEditButton)
 public:
  explicit TCustomEditButton(TComponent* owner);
  static constexpr TKept<QString> ButtonCaption{"ButtonCaption"};
  static constexpr TKept<int> ButtonWidth{"ButtonWidth", 23};
  static constexpr TKept<TGlyph*> Glyph{"Glyph"};

  void Paint(TCanvas& canvas) override;

 protected:
  // What the button shows when it has neither a text nor a picture of its own.
  virtual QString UsualCaption() const { return QStringLiteral("..."); }
};

#define VRX_EDIT_BUTTON(Type)                   \
  class Type : public TCustomEditButton {       \
    VRX_CLASS(Type)                             \
   public:                                      \
    using TCustomEditButton::TCustomEditButton; \
  };

VRX_EDIT_BUTTON(TEditButton)
VRX_EDIT_BUTTON(TFileNameEdit)
VRX_EDIT_BUTTON(TDirectoryEdit)
