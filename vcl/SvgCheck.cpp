#include "vcl/SvgCheck.h"

#include <zlib.h>

#include <QXmlStreamReader>

#include "vcl/PictureHead.h"
#include "vcl/PixelPicture.h"
#include "vcl/SvgUses.h"

namespace {
constexpr qsizetype MaxText = qsizetype{64} << 20;
constexpr int MaxSvgDepth = 256;                    // drawing goes down by recursion
constexpr std::int64_t MaxSvgElements = 1'000'000;  // with those that are drawn again

bool IsCompressed(QByteArrayView bytes) { return bytes.startsWith("\x1f\x8b"); }

QByteArray Inflated(const QByteArray& bytes, const QString& what) {
  z_stream stream{};
  if (inflateInit2(&stream, 15 + 16) != Z_OK) throw std::bad_alloc();  // 16: with the header of a file
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.constData()));
  stream.avail_in = static_cast<uInt>(bytes.size());
  QByteArray text;
  int state = Z_OK;
  while (state == Z_OK && text.size() <= MaxText) {
    char block[1 << 14];
    stream.next_out = reinterpret_cast<Bytef*>(block);
    stream.avail_out = sizeof(block);
    state = inflate(&stream, Z_NO_FLUSH);
    text.append(block, static_cast<qsizetype>(sizeof(block) - stream.avail_out));
  }
  inflateEnd(&stream);
  if (text.size() > MaxText)
    throw EInvalidPicture(QStringLiteral("%1 is a drawing of more than %2 MB.").arg(what).arg(MaxText >> 20));
  if (state != Z_STREAM_END) throw EInvalidPicture(QStringLiteral("%1 is damaged or incomplete.").arg(what));
  return text;
}

// Without comments, and every character written plainly.
QString PlainCss(const QString& css) {
  QString plain;
  for (qsizetype i = 0; i < css.size(); ++i) {
    if (css[i] == u'/' && css.mid(i, 2) == QStringLiteral("/*")) {
      const qsizetype end = css.indexOf(QStringLiteral("*/"), i + 2);
      if (end < 0) break;
      i = end + 1;
    } else if (css[i] == u'\\' && i + 1 < css.size()) {
      qsizetype digits = 0;
      while (digits < 6 && i + 1 + digits < css.size() &&
             QStringLiteral("0123456789abcdefABCDEF").contains(css[i + 1 + digits]))
        ++digits;
      if (digits == 0) {
        plain += css[++i];
        continue;
      }
      plain += QChar(static_cast<char16_t>(css.mid(i + 1, digits).toUInt(nullptr, 16)));
      i += digits;
      if (i + 1 < css.size() && css[i + 1].isSpace()) ++i;
    } else {
      plain += css[i];
    }
  }
  return plain;
}

class Checker {
 public:
  Checker(const QByteArray& text, const QString& what) : xml_(text), what_(what) {
    xml_.setNamespaceProcessing(false);  // as the drawing is read later
  }
  void Run() {
    int depth = 0;
    while (!xml_.atEnd()) {
      switch (xml_.readNext()) {
        case QXmlStreamReader::DTD:
          CheckEntities();
          break;
        case QXmlStreamReader::ProcessingInstruction:
          if (xml_.processingInstructionTarget().compare(u"xml-stylesheet", Qt::CaseInsensitive) == 0)
            Outside(xml_.processingInstructionData().toString());
          break;
        case QXmlStreamReader::StartElement:
          if (++depth > MaxSvgDepth)
            throw EInvalidPicture(
                QStringLiteral("%1 is a drawing nested more than %2 deep.").arg(what_).arg(MaxSvgDepth));
          CheckElement();
          break;
        case QXmlStreamReader::EndElement:
          --depth;
          uses_.Close();
          break;
        case QXmlStreamReader::Characters:
          CheckCss(xml_.text().toString());
          break;
        default:
          break;
      }
    }
    if (xml_.hasError())
      throw EInvalidPicture(QStringLiteral("%1 is damaged or incomplete: %2 (line %3, column %4).")
                                .arg(what_, xml_.errorString())
                                .arg(xml_.lineNumber())
                                .arg(xml_.columnNumber()));
    if (uses_.Drawn(MaxSvgElements) >= MaxSvgElements)
      throw EInvalidPicture(
          QStringLiteral("%1 is a drawing that repeats its parts without end, or to more than %2 elements.")
              .arg(what_)
              .arg(MaxSvgElements));
  }

 private:
  [[noreturn]] void Outside(const QString& reference) {
    throw EInvalidPicture(
        QStringLiteral("%1 refers to something outside of itself, \"%2\" (line %3). Such drawings "
                       "are not loaded; embed what it refers to, or save it as PNG.")
            .arg(what_, reference.simplified().left(80))
            .arg(xml_.lineNumber()));
  }

  void CheckEntities() {
    for (const QXmlStreamEntityDeclaration& e : xml_.entityDeclarations())
      if (!e.systemId().isEmpty() || !e.publicId().isEmpty()) Outside(e.systemId().toString());
  }

  void CheckElement() {
    const QStringView name = LocalName(xml_.qualifiedName());
    uses_.Open(xml_.attributes().value(QLatin1StringView("id")).toString());
    for (const QXmlStreamAttribute& a : xml_.attributes()) {
      const QStringView attribute = LocalName(a.qualifiedName());
      const QString value = a.value().toString();
      // A link is for the reader of a page; nobody follows it here.
      const bool fetched = attribute.compare(u"href", Qt::CaseInsensitive) == 0
                               ? name.compare(u"a", Qt::CaseInsensitive) != 0
                               : attribute.compare(u"src", Qt::CaseInsensitive) == 0;
      if (fetched && value.startsWith(u'#')) uses_.Use(value.mid(1));
      if (fetched && !value.isEmpty() && !value.startsWith(u'#')) CheckEmbedded(value);
      CheckCss(value);
    }
  }

  static QStringView LocalName(QStringView name) { return name.sliced(name.lastIndexOf(u':') + 1); }

  // Only pictures that are there, in pixels, and whole: what cannot be decoded would be taken for a file
  // name.
  void CheckEmbedded(const QString& value) {
    const QString mark = QStringLiteral(";base64,");
    const qsizetype data = value.indexOf(mark);
    if (!value.startsWith(QStringLiteral("data:image/")) || data < 0 ||
        value.lastIndexOf(QStringLiteral("base64,")) != data + 1)
      Outside(value);
    const QByteArray bytes = QByteArray::fromBase64(value.mid(data + mark.size()).toLatin1());
    const QString inside = QStringLiteral("%1: the embedded picture").arg(what_);
    if (IsSvg(bytes))
      throw EInvalidPicture(
          QStringLiteral("%1 is a drawing inside of a drawing; it is not loaded.").arg(inside));
    const QSize size = PixelPictureFromBytes(bytes, inside).size();
    pixels_ += std::int64_t{size.width()} * size.height();
    RequirePictureSize(inside, pixels_, 1);
  }

  void CheckCss(const QString& text) {
    if (!text.contains(u'(') && !text.contains(u'@') && !text.contains(u'\\')) return;
    const QString css = PlainCss(text);
    if (css.contains(QStringLiteral("@import"), Qt::CaseInsensitive)) Outside(css);
    qsizetype at = -1;
    while ((at = css.indexOf(QStringLiteral("url("), at + 1, Qt::CaseInsensitive)) >= 0) {
      qsizetype from = at + 4;
      while (from < css.size() && (css[from].isSpace() || css[from] == u'"' || css[from] == u'\'')) ++from;
      if (from < css.size() && css[from] != u'#' && !css.mid(from, 5).startsWith(QStringLiteral("data:")))
        Outside(css.mid(at));
    }
  }

  QXmlStreamReader xml_;
  QString what_;
  std::int64_t pixels_ = 0;  // of everything embedded
  SvgUses uses_;
};
}  // namespace

bool IsSvg(QByteArrayView bytes) {
  if (IsCompressed(bytes)) return true;
  if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF")) return true;  // a text of 16-bit units
  if (bytes.startsWith("\xEF\xBB\xBF")) bytes = bytes.sliced(3);
  return bytes.trimmed().startsWith('<');
}

QByteArray SelfContainedSvg(const QByteArray& bytes, const QString& what) {
  QByteArray text = IsCompressed(bytes) ? Inflated(bytes, what) : bytes;
  Checker(text, what).Run();
  return text;
}
