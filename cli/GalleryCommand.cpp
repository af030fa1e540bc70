// vrx gallery: a picture of every component, and a sheet of them all.
#include <QApplication>
#include <QDir>
#include <QPainter>
#include <cmath>

#include "cli/Commands.h"
#include "cli/PictureOptions.h"
#include "forms/FormFile.h"
#include "ide/ComponentPicture.h"
#include "rtl/Clock.h"
#include "rtl/Exceptions.h"
#include "rtl/Printable.h"
#include "vcl/PictureFile.h"

namespace {
struct Entry {
  QString name;
  QImage picture;
};
struct Chapter {
  QString title;
  std::vector<Entry> entries;
};

// Pictures in rows, each with its name below, under the name of their page. Sizes are those at scale 1.
class Sheet {
 public:
  explicit Sheet(double scale) : scale_(scale) {}

  QImage Paint(const std::vector<Chapter>& chapters) {
    const int height = Flow(chapters, nullptr);
    const QSize size = Scaled(QSize(Width, height));
    if (double(size.width()) * size.height() > MostPixels)
      throw Exception(
          QStringLiteral("The sheet would have more than 200 million pixels; use a smaller --scale"));
    QImage image(size, QImage::Format_RGB32);
    image.fill(palette_.color(QPalette::Base));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(scale_, scale_);
    Flow(chapters, &painter);
    return image;
  }

 private:
  static constexpr int Width = 1500, Gap = 16, Line = 18, Title = 34, Narrow = 150, Small = 11;
  static constexpr QSize Most{270, 200};
  static constexpr double MostPixels = 200e6;

  QSize Scaled(QSize size) const {
    return {static_cast<int>(std::lround(size.width() * scale_)),
            static_cast<int>(std::lround(size.height() * scale_))};
  }
  QSize ShownSize(const QImage& picture) const {
    const QSize size = (QSizeF(picture.size()) / scale_).toSize();
    return size.width() > Most.width() || size.height() > Most.height()
               ? size.scaled(Most, Qt::KeepAspectRatio)
               : size;
  }
  // Places everything, and paints it when there is a painter; returns the height.
  int Flow(const std::vector<Chapter>& chapters, QPainter* painter) {
    int y = Gap;
    for (const Chapter& chapter : chapters) {
      if (painter) Write(*painter, QRect(Gap, y, Width - 2 * Gap, Title), chapter.title, 18, true);
      y += Title;
      int x = Gap, high = 0;
      for (const Entry& entry : chapter.entries) {
        const QSize size = ShownSize(entry.picture);
        const int width = std::max({size.width(), Narrow, names_.horizontalAdvance(entry.name) + 1});
        if (x > Gap && x + width > Width - Gap) {
          x = Gap;
          y += high + Line + Gap;
          high = 0;
        }
        if (painter) {
          painter->drawImage(QRect(QPoint(x, y), size), entry.picture);
          Write(*painter, QRect(x, y + size.height() + 2, width, Line), entry.name, Small, false);
        }
        high = std::max(high, size.height());
        x += width + Gap;
      }
      y += high + Line + 2 * Gap;
    }
    return y;
  }
  static QFont FontOf(int pixels, bool bold) {
    QFont font = QApplication::font();
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
  }
  void Write(QPainter& painter, const QRect& place, const QString& text, int pixels, bool bold) const {
    painter.setFont(FontOf(pixels, bold));
    painter.setPen(palette_.color(QPalette::Text));
    painter.drawText(place, Qt::AlignLeft | Qt::AlignTop, text);
  }

  double scale_;
  QPalette palette_ = FormPalette();
  QFontMetrics names_{FontOf(Small, false)};
};
}  // namespace

int GalleryCommand(const QStringList& list, Console& console) {
  const Arguments args =
      ParseArguments(list, {QStringLiteral("-o"), QStringLiteral("--scale"), QStringLiteral("--theme")}, {});
  const QString folder = args.options.value(QStringLiteral("-o"));
  if (!args.values.isEmpty() || folder.isEmpty())
    throw UsageError{QStringLiteral("-o DIR is needed, and nothing else")};
  const double scale = ScaleOption(args);
  const FormColorScope colors(ThemeOption(args));
  if (LoadClasses(console, true).isEmpty()) return ExitFindings;
  if (!QDir().mkpath(folder)) throw Exception(QStringLiteral("The folder %1 cannot be made").arg(folder));
  const auto write = [&](const QString& name, const QImage& picture) {
    const QString file = QDir(folder).filePath(name + QStringLiteral(".png"));
    forms::WriteFile(file, PictureToBytes(picture, "PNG"));
    console.out << Printable(file) << '\n';
  };
  // Clocks and calendars show the same whenever they are drawn: nine minutes past ten.
  const TClockOverride still([] { return std::int64_t{(10 * 60 + 9) * 60 + 36} * 1000; });
  std::vector<Chapter> chapters;
  for (const TPalettePage& page : PagesOfPictures(Host())) {
    Chapter& chapter =
        chapters.emplace_back(Chapter{page.Name.isEmpty() ? QStringLiteral("On no page") : page.Name, {}});
    for (const TClass* cls : page.Classes) {
      const Entry& entry = chapter.entries.emplace_back(
          Entry{QString::fromLatin1(cls->ClassName()), PictureOf(*cls, Host(), scale)});
      write(entry.name, entry.picture);
    }
  }
  write(QStringLiteral("gallery"), Sheet(scale).Paint(chapters));
  console.out.flush();
  return ExitOk;
}
