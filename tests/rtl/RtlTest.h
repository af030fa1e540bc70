// Classes of the tests: every kind of published property, and a small family to republish in.
#pragma once
#include <gtest/gtest.h>

#include "rtl/Class.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Collection.h"
#include "rtl/Component.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"
#include "rtl/Strings.h"

namespace rtltest {

enum class TFlavour { fvSweet, fvSour, fvBitter };
using TFlavours = TSet<TFlavour>;
enum class TLetter : std::uint16_t {};  // a character type

}  // namespace rtltest

VRX_TYPE_INFO(rtltest::TFlavour, EnumType("TFlavour", {"fvSweet", "fvSour", "fvBitter"}))
VRX_SET(rtltest::TFlavours, rtltest::TFlavour)
VRX_TYPE_INFO(rtltest::TLetter,
              (TTypeInfo{.Kind = TTypeKind::tkChar, .Name = "Char", .MinValue = 0, .MaxValue = 65535}))

namespace rtltest {

// A value object.
class TPoint2 : public TOwnedPersistent {
  VRX_CLASS(TPoint2)
 public:
  using TOwnedPersistent::TOwnedPersistent;
  int X() const { return x_; }
  void SetX(int v) { Change(x_, v); }
  int Y() const { return y_; }
  void SetY(int v) { Change(y_, v); }

 private:
  int x_ = 0;
  int y_ = 5;
};

class TPiece : public TCollectionItem {
  VRX_CLASS(TPiece)
 public:
  using TCollectionItem::TCollectionItem;
  QString Title() const { return title_; }
  void SetTitle(const QString& v) { title_ = v; }

 private:
  QString title_;
};

// One property of every kind.
class TEverything : public TComponent {
  VRX_CLASS(TEverything)
 public:
  explicit TEverything(TComponent* owner)
      : TComponent(owner), point(this), lines(this), parts(TPiece::StaticClass(), this) {}

  int changes = 0;
  bool keep = true;
  int integer = 3;
  std::int8_t shortInt = 0;
  std::uint8_t byte = 0;
  std::int16_t smallInt = 0;
  std::uint16_t word = 0;
  std::uint32_t cardinal = 0;
  std::int64_t int64 = 0;
  TLetter letter = TLetter{65};
  bool boolean = true;
  TFlavour flavour = TFlavour::fvSour;
  TFlavours flavours{TFlavour::fvSweet, TFlavour::fvBitter};
  float single = 0;
  double real = 0;
  TCurrency money;
  TDateTime moment;
  QString text;
  QByteArray data;
  int always = 0;
  int conditional = 0;
  int readOnly = 7;
  TPoint2 point;
  TStrings lines;
  TCollection parts;

  TPoint2* Point() const { return const_cast<TPoint2*>(&point); }
  TStrings* Lines() const { return const_cast<TStrings*>(&lines); }
  TCollection* Parts() const { return const_cast<TCollection*>(&parts); }
  TEverything* Friend() const { return friend_; }
  void SetFriend(TEverything* value) { SetReference(*this, friend_, value); }
  bool Keep() const { return keep; }

 protected:
  void DoChanged() override { ++changes; }

 private:
  TEverything* friend_ = nullptr;
};

inline const TPropInfo& Prop(const TPersistent& p, const char* name) { return p.ClassType().GetProp(name); }
inline QByteArrayList Names(const TClass& cls) {
  QByteArrayList names;
  for (const TPropInfo* p : cls.Properties()) names << p->Name;
  return names;
}

}  // namespace rtltest
