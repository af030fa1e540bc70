// What the tests of graphic labels share.
#pragma once
#include "library/controls/GraphicLabel.h"
#include "tests/library/VisibleProperties.h"

inline TVRXLetterStyle StyleOf(int pixels) {
  TVRXLetterStyle style;
  style.Font.setPixelSize(pixels);
  return style;
}

inline std::unique_ptr<TVRXGraphicLabel> Label(const char* values, QSize size = {157, 61},
                                               const QString& caption = QStringLiteral("Agiv")) {
  auto label = std::make_unique<TVRXGraphicLabel>(nullptr);
  label->SetAutoSize(false);
  label->SetCaption(caption);
  label->SetBounds(0, 0, size.width(), size.height());
  visible::Apply(*label, QString::fromLatin1(values));
  return label;
}
