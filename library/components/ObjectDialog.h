// Asks for something to put into a document: a new object of some kind, or a file.
#pragma once
#include "library/components/BaseDialog.h"
#include "rtl/Strings.h"

enum class TVRXObjectSource : std::uint8_t { osNew, osFile };
VRX_ENUM(TVRXObjectSource, {"osNew", "osFile"})
enum class TVRXInsertObjectOption : std::uint8_t { ioAsIcon, ioFile, ioLink, ioNew };
VRX_ENUM(TVRXInsertObjectOption, {"ioAsIcon", "ioFile", "ioLink", "ioNew"})
using TVRXInsertObjectOptions = TSet<TVRXInsertObjectOption>;
VRX_SET(TVRXInsertObjectOptions, TVRXInsertObjectOption)

class TVRXFormInsertObjectDialog : public TVRXBaseDialog {
  VRX_CLASS(TVRXFormInsertObjectDialog)
 public:
  using TVRXBaseDialog::TVRXBaseDialog;
  static constexpr TKept<bool> AsIcon{"AsIcon", false};
  static constexpr TKept<QString> FileName{"FileName"};
  static constexpr TKept<bool> Link{"Link", false};
  static constexpr TKept<QString> ObjectType{"ObjectType"};
  static constexpr TKept<TStrings*> ObjectTypes{"ObjectTypes"};
  static constexpr TKept<TVRXInsertObjectOptions> Options{
      "Options",
      {TVRXInsertObjectOption::ioAsIcon, TVRXInsertObjectOption::ioFile, TVRXInsertObjectOption::ioLink,
       TVRXInsertObjectOption::ioNew}};
  static constexpr TKept<TVRXObjectSource> Source{"Source", TVRXObjectSource::osNew};

  // What can be made new: ObjectTypes, or the documents that this system knows.
  QStringList Kinds() const;

 protected:
  Content MakeContent() override;
};
