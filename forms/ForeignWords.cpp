#include "forms/ForeignWords.h"

#include <algorithm>

namespace forms {

namespace {
struct WordRow {
  QByteArrayView type;
  QByteArrayView word;
  WordHome home;
};
constexpr WordRow Words[] = {
    {"TColor", "clForm", WordHome::Lcl},
    {"TColor", "clColorDesktop", WordHome::Lcl},
    {"TFormStyle", "fsSplash", WordHome::Lcl},
    {"TFormStyle", "fsSystemStayOnTop", WordHome::Lcl},
    {"TWindowState", "wsFullScreen", WordHome::Lcl},
    {"TColor", "clBase", WordHome::Elsewhere},
    {"TColor", "clBrightText", WordHome::Elsewhere},
    {"TColor", "clButton", WordHome::Elsewhere},
    {"TColor", "clButtonText", WordHome::Elsewhere},
    {"TColor", "clDark", WordHome::Elsewhere},
    {"TColor", "clForeground", WordHome::Elsewhere},
    {"TColor", "clLight", WordHome::Elsewhere},
    {"TColor", "clMid", WordHome::Elsewhere},
    {"TColor", "clMidlight", WordHome::Elsewhere},
    {"TColor", "clShadow", WordHome::Elsewhere},
    {"TColor", "clText", WordHome::Elsewhere},
};
}  // namespace

WordHome HomeOfWord(QByteArrayView type, QByteArrayView word) {
  const auto* const row = std::find_if(std::begin(Words), std::end(Words), [&](const WordRow& r) {
    return r.type == type && r.word.compare(word, Qt::CaseInsensitive) == 0;
  });
  return row == std::end(Words) ? WordHome::Nowhere : row->home;
}

}  // namespace forms
