// Lists of names, each with a value behind it: what is chosen is the value.
#pragma once
#include "library/values/ValueListControl.h"
#include "vcl/AsGiven.h"
#include "vcl/ComboBox.h"
#include "vcl/ListBox.h"

// What a list and a field with a list have in common.
template <class Base>
class TVRXValued : public Base, public IVRXValueListControl, private IVRXValueHolder {
 public:
  using Base::Base;
  static constexpr TKept<TStrings*> Values{"Values"};

  // The chosen item's. A value that no item has chooses none; the name of an item stands for its value.
  const QString& ChosenValue() const { return value_; }
  void ChooseValue(const QString& v) {
    const bool given = v.isEmpty() || TakesAsGiven(*this) || Behind().contains(v);
    const int named = given ? -1 : static_cast<int>(Names().indexOf(v));
    this->Change(value_, named < 0 ? v : Behind().value(named));
  }
  // The first item that has the value; -1 for none.
  int ItemOfValue() const {
    const qsizetype index = value_.isEmpty() ? -1 : Behind().indexOf(value_);
    return index < Names().size() ? static_cast<int>(index) : -1;
  }

  TStrings& ItemNames() override { return *this->Get(Base::Items); }
  IVRXValueHolder& ItemValues() override { return *this; }

 protected:
  const QStringList& Names() const { return this->Get(Base::Items)->Lines(); }

 private:
  const QStringList& Behind() const { return this->Get(Values)->Lines(); }
  QString Value(int index) const override { return Behind().value(index); }
  void SetValue(int index, const QString& value) override {
    if (Behind().size() == index) this->Get(Values)->Add(value);
    if (Behind().value(index) == value && index < Behind().size()) return;
    QStringList values = Behind();
    values.resize(std::max<qsizetype>(values.size(), index + 1));
    values[index] = value;
    this->Get(Values)->SetLines(values);
  }
  void Remove(int index, int count) override {
    this->Get(Values)->SetLines(Behind().mid(0, index) + Behind().mid(index + count));
  }

  QString value_;
};

class TVRXValueListBox : public TVRXValued<TCustomListBox> {
  VRX_CLASS(TVRXValueListBox)
 public:
  explicit TVRXValueListBox(TComponent* owner) : TVRXValued(owner) { SetBounds(0, 0, 120, 96); }

 protected:
  int ChosenItem() const override { return ItemOfValue(); }
};

// Shows the name of the chosen item.
class TVRXValueComboBox : public TVRXValued<TCustomComboBox> {
  VRX_CLASS(TVRXValueComboBox)
 public:
  explicit TVRXValueComboBox(TComponent* owner) : TVRXValued(owner) { SetBounds(0, 0, 144, 23); }

 protected:
  void PaintField(TCanvas& canvas, const QRect& inside) override;
};
