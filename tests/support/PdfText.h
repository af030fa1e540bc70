// What stands on the pages of a PDF that the toolkit wrote: enough of the format for that.
#pragma once
#include <QByteArray>
#include <QColor>
#include <QHash>
#include <QRegularExpression>
#include <QSizeF>
#include <QStringList>
#include <vector>

struct PdfRun {  // one piece of text that was drawn
  QString text;
  double x = 0, y = 0;  // points, from the upper left corner of the page
  QString font;
  QColor color;
};
struct PdfPage {
  QSizeF size;  // points
  std::vector<PdfRun> runs;
  QStringList Texts() const {
    QStringList texts;
    for (const PdfRun& run : runs) texts << run.text;
    return texts;
  }
};

class PdfText {
 public:
  explicit PdfText(const QByteArray& bytes) {
    // Bytes as letters, so that one expression finds what it looks for among them.
    const QString all = QString::fromLatin1(bytes);
    static const QRegularExpression object(QStringLiteral("(?:^|\\n)(\\d+) 0 obj\\n(.*?)\\nendobj"),
                                           QRegularExpression::DotMatchesEverythingOption);
    for (auto it = object.globalMatch(all); it.hasNext();) {
      const auto found = it.next();
      objects_[found.captured(1).toInt()] = found.captured(2);
    }
    static const QRegularExpression title(QStringLiteral("/Title \\((.*?)\\)\\n"),
                                          QRegularExpression::DotMatchesEverythingOption);
    const QByteArray name = title.match(all).captured(1).toLatin1();
    for (qsizetype i = 2; i + 1 < name.size(); i += 2)
      Title += QChar(static_cast<char16_t>(static_cast<unsigned char>(name[i]) << 8 |
                                           static_cast<unsigned char>(name[i + 1])));
    for (const QString& text : objects_)
      if (text.contains(QStringLiteral("/Type /Pages")))
        for (const int page : Numbers(Match(text, QStringLiteral("/Kids \\n?\\[(.*?)\\]"))))
          Pages.push_back(Read(objects_.value(page)));
  }
  QString Title;
  std::vector<PdfPage> Pages;

 private:
  static QString Match(const QString& text, const QString& pattern) {
    return QRegularExpression(pattern, QRegularExpression::DotMatchesEverythingOption)
        .match(text)
        .captured(1);
  }
  static QList<int> Numbers(const QString& references) {
    QList<int> numbers;
    static const QRegularExpression reference(QStringLiteral("(\\d+) 0 R"));
    for (auto it = reference.globalMatch(references); it.hasNext();) numbers << it.next().captured(1).toInt();
    return numbers;
  }
  int Reference(const QString& text, const char* key) const {
    return Match(text, QStringLiteral("/%1 (\\d+) 0 R").arg(QLatin1StringView(key))).toInt();
  }
  static QByteArray Stream(const QString& object) {
    const QByteArray bytes = object.toLatin1();
    const qsizetype from = bytes.indexOf("stream\n") + 7, to = bytes.lastIndexOf("\nendstream");
    const QByteArray inside = bytes.mid(from, to - from);
    // Four bytes in front say how much it may become; it grows where that is too little.
    return object.contains(QStringLiteral("/FlateDecode")) ? qUncompress(QByteArray("\0\1\0\0", 4) + inside)
                                                           : inside;
  }

  QHash<QString, QString> Letters(int font) const {
    QHash<QString, QString> letters;
    const QString map =
        QString::fromLatin1(Stream(objects_.value(Reference(objects_.value(font), "ToUnicode"))));
    static const QRegularExpression range(QStringLiteral("<(\\w{4})> <\\w{4}> \\[(.*?)\\]"));
    for (auto it = range.globalMatch(map); it.hasNext();) {
      const auto found = it.next();
      int glyph = found.captured(1).toInt(nullptr, 16);
      static const QRegularExpression code(QStringLiteral("<(\\w{4})>"));
      for (auto c = code.globalMatch(found.captured(2)); c.hasNext(); ++glyph) {
        const QChar letter(static_cast<char16_t>(c.next().captured(1).toUInt(nullptr, 16)));
        letters[QStringLiteral("%1").arg(glyph, 4, 16, QChar(u'0')).toUpper()] =
            letter.isSpace() ? QStringLiteral(" ")
                             : QString(letter).normalized(QString::NormalizationForm_KC);
      }
    }
    return letters;
  }

  PdfPage Read(const QString& page) const {
    PdfPage result;
    const QStringList box = Match(page, QStringLiteral("/MediaBox \\[(.*?)\\]")).split(u' ');
    result.size = {box.value(2).toDouble(), box.value(3).toDouble()};
    const QString content = QString::fromLatin1(Stream(objects_.value(Reference(page, "Contents"))));
    static const QRegularExpression scale(
        QStringLiteral("\\n([0-9.]+) 0 0 -[0-9.]+ ([-0-9.]+) ([-0-9.]+) cm"));
    const auto unit = scale.match(content);
    const double factor = unit.captured(1).toDouble(), left = unit.captured(2).toDouble(),
                 top = result.size.height() - unit.captured(3).toDouble();
    static const QRegularExpression text(
        QStringLiteral("([0-9.]+) ([0-9.]+) ([0-9.]+) scn\\n/GSa gs\\nBT\\n/F(\\d+) [0-9.]+ "
                       "Tf[^\\n]*\\n([-0-9.]+) ([-0-9.]+) Td (.*?)ET\\n"),
        QRegularExpression::DotMatchesEverythingOption);
    for (auto it = text.globalMatch(content); it.hasNext();) {
      const auto found = it.next();
      const int font = found.captured(4).toInt();
      const QHash<QString, QString> letters = Letters(font);
      PdfRun run;
      run.color = QColor::fromRgbF(found.captured(1).toFloat(), found.captured(2).toFloat(),
                                   found.captured(3).toFloat());
      run.x = left + factor * found.captured(5).toDouble();
      run.y = top - factor * found.captured(6).toDouble();
      run.font = Match(objects_.value(font), QStringLiteral("/BaseFont /(\\S+)"));
      static const QRegularExpression glyph(QStringLiteral("<(\\w{4})> Tj"));
      for (auto g = glyph.globalMatch(found.captured(7)); g.hasNext();)
        run.text += letters.value(g.next().captured(1), QStringLiteral("?"));
      result.runs.push_back(run);
    }
    return result;
  }
  QHash<int, QString> objects_;
};
