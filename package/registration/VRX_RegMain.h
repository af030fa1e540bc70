// Palette, actions and the editors that belong to each page.
#pragma once
#include <QByteArrayList>
#include <functional>

#include "rtl/Class.h"

namespace VRX_RegMain {
void Register();
}

enum class TPageCall : unsigned char { Components, Actions };

// One registration call for a page or an action category.
struct TPageRow {
  TPageCall Call;
  const char* Name;
  bool LabeledOnly;  // only when the labeled variants are switched on
  QByteArrayList Classes;
};
const std::vector<TPageRow>& PageRows();
// Makes the calls in order. Classes that `find` does not know are left out, and so is a row without any;
// after each row `editors` is called with the row's name.
void RegisterPages(const std::vector<TPageRow>& rows,
                   const std::function<const TClass*(const QByteArray&)>& find,
                   const std::function<void(const QByteArray&)>& editors);
