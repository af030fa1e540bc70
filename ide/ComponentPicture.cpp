#include "ide/ComponentPicture.h"

#include <QPainter>
#include <cmath>

#include "designintf/ComponentIcons.h"
#include "ide/Tiles.h"
#include "rtl/ClassRegistry.h"
#include "rtl/PropText.h"
#include "vcl/Action.h"
#include "vcl/Form.h"
#include "vcl/FormColors.h"
#include "vcl/FormDecor.h"
#include "vcl/Menu.h"

namespace {
constexpr int Margin = 8, Around = 40, Icon = 48;
constexpr QSize Room(320, 160), Window(240, 130);

QImage PictureOfIcon(const TClass& cls, double scale) {
  const QPalette palette = FormPalette();
  const int side = static_cast<int>(std::lround((Icon + 2 * Margin) * scale));
  QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
  image.fill(palette.color(QPalette::Window));
  QPainter painter(&image);
  painter.scale(scale, scale);
  painter.drawPixmap(QPoint(Margin, Margin), ComponentPixmap(cls, Icon, scale, palette));
  return image;
}

void SetClientSize(TForm& form, QSize size) {
  form.SetClientWidth(size.width());
  form.SetClientHeight(size.height());
}

// Everything that is not the ground, which reaches into the corner on the lower right.
QRect InkOf(const QImage& image) {
  const QRgb ground = image.pixel(image.width() - 1, image.height() - 1);
  QRect ink;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) != ground) ink |= QRect(x, y, 1, 1);
  return ink;
}

QRect Scaled(const QRect& rect, double scale) {
  return {QPointF(rect.topLeft() * scale).toPoint(), QSizeF(rect.size() * scale).toSize()};
}
// What a person can have on a form though no page offers it. Actions and items of menus stand inside of
// others.
bool CanStandOnForms(const TClass& cls) {
  return !cls.IsAbstract() && cls.InheritsFrom(TComponent::StaticClass()) &&
         !cls.InheritsFrom(TBasicAction::StaticClass()) && !cls.InheritsFrom(TMenuItem::StaticClass());
}
}  // namespace

std::vector<TPalettePage> PagesOfPictures(const DesignRegistry& registry) {
  std::vector<TPalettePage> pages = registry.PalettePages();
  TPalettePage others;
  for (const TClass* cls : RegisteredClasses()) {
    const bool placed = std::any_of(pages.begin(), pages.end(), [&](const TPalettePage& page) {
      return std::find(page.Classes.begin(), page.Classes.end(), cls) != page.Classes.end();
    });
    if (!placed && CanStandOnForms(*cls)) others.Classes.push_back(cls);
  }
  if (!others.Classes.empty()) pages.push_back(std::move(others));
  return pages;
}

QImage PictureOf(const TClass& cls, DesignRegistry& registry, double scale) {
  const bool decorates = cls.InheritsFrom(TFormDecor::StaticClass());
  const bool isForm = cls.InheritsFrom(TForm::StaticClass());
  if (!decorates && !cls.InheritsFrom(TControl::StaticClass())) return PictureOfIcon(cls, scale);
  const auto session = FormSession::NewForm(QStringLiteral("Form1"), registry);
  TForm& form = session->Form();
  SetClientSize(form, decorates || isForm ? Window : Room);
  if (isForm) return RenderRoot(*session, scale);
  if (!decorates) SetPropText(form, form.ClassType().GetProp("BorderStyle"), QStringLiteral("bsNone"));
  auto* control = As<TControl>(session->CreateComponent(cls, nullptr, QRect(Around, Around, 0, 0)));
  session->Select({});
  if (!control) return RenderRoot(*session, scale);
  // A label beside it belongs to it, too. What shows nothing by itself shows its icon.
  if (control->Align() == TAlign::alNone)
    SetClientSize(form, control->BoundsRect().size() + QSize(4 * Around, 2 * Around));
  const QImage plain = RenderRoot(*session, 1);
  const QRect ink = InkOf(plain);
  if (ink.isEmpty()) return PictureOfIcon(cls, scale);
  const QRect shown = (ink | control->BoundsRect()).adjusted(-Margin, -Margin, Margin, Margin) & plain.rect();
  return RenderRoot(*session, scale).copy(Scaled(shown, scale));
}
