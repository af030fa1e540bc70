#include "library/html/Markup.h"

#include "library/html/Entities.h"
#include "library/html/Tags.h"
#include "vcl/ShownText.h"

namespace html {

QString Document::PlainText() const {
  QString all;
  for (const Paragraph& p : paragraphs) {
    if (!all.isEmpty()) all += u'\n';
    all += QStringView(text).mid(p.start, p.length);
  }
  return all.replace(QChar::LineSeparator, u'\n').remove(PictureEdge);
}

namespace {
constexpr int SmallestSize = 1, UsualSize = 3, LargestSize = 7;

// Blanks are one; those that do not break are letters.
bool IsBlank(QChar c) { return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\f'; }

QString Decoded(const QString& value) {
  QString text;
  for (qsizetype i = 0; i < value.size();) {
    const Entity entity = value[i] == u'&' ? EntityAt(value, i) : Entity();
    text += entity.length > 0 ? entity.text : QString(value[i]);
    i += std::max<qsizetype>(entity.length, 1);
  }
  return text;
}

// A name of the framework (clRed) or of the web (red), or #rrggbb.
TColor ColorOf(const QString& name, TColor otherwise) {
  std::int64_t known = 0;
  if (IdentToColor(name.toLatin1(), known)) return TColor(static_cast<std::uint32_t>(known));
  return QColor::isValidColor(name) ? FromQColor(QColor(name)) : otherwise;
}

// "5", or "+2" from the usual one.
int SizeOf(const QString& value, int otherwise) {
  bool ok = false;
  const int number = value.trimmed().toInt(&ok);
  if (!ok) return otherwise;
  const bool steps = value.trimmed().startsWith(u'+') || number < 0;
  return std::clamp(steps ? std::clamp(number, -LargestSize, LargestSize) + UsualSize : number, SmallestSize,
                    LargestSize);
}

Qt::Alignment AlignmentOf(const QString& value) {
  constexpr std::pair<const char*, Qt::AlignmentFlag> names[] = {{"left", Qt::AlignLeft},
                                                                 {"center", Qt::AlignHCenter},
                                                                 {"right", Qt::AlignRight},
                                                                 {"justify", Qt::AlignJustify}};
  for (const auto& [name, flag] : names)
    if (value.trimmed().compare(QLatin1String(name), Qt::CaseInsensitive) == 0) return flag;
  return {};
}

class Parser {
 public:
  explicit Parser(const QString& markup) : markup_(ShownText(markup)) {}

  Document All() {
    for (qsizetype i = 0; i < markup_.size();) {
      const QChar c = markup_[i];
      if (c == u'<') {
        if (const auto tag = TagAt(markup_, i)) {
          Take(*tag);
          i = tag->end;
          continue;
        }
      } else if (c == u'&') {
        if (const Entity entity = EntityAt(markup_, i); entity.length > 0) {
          if (IsBlank(entity.text[0]))
            Blank();
          else
            Letters(entity.text);
          i += entity.length;
          continue;
        }
      }
      if (IsBlank(c))
        Blank();
      else
        Letters(QStringView(markup_).mid(i, 1));
      ++i;
    }
    EndParagraph();
    return std::move(document_);
  }

 private:
  struct List {
    bool numbered;
    int count = 0;
  };

  Look Now() const {
    Look look = fonts_.empty() ? Look() : fonts_.back();
    look.bold = Open(TagKind::B) > 0;
    look.italic = Open(TagKind::I) > 0;
    look.underline = Open(TagKind::U) > 0;
    look.strikeOut = Open(TagKind::S) > 0;
    look.script = Open(TagKind::Sub) > 0 ? -1 : Open(TagKind::Sup) > 0 ? 1 : 0;
    look.link = links_.empty() ? -1 : links_.back();
    return look;
  }
  int Open(TagKind kind) const { return open_[static_cast<std::size_t>(kind)]; }

  // A piece goes on while the look is the same; nobody asks before there is a letter.
  void Append(QStringView text, int image = -1) {
    std::vector<Piece>& pieces = document_.pieces;
    if (lookChanged_) now_ = Now(), lookChanged_ = false;
    const bool goesOn = pieces.size() > paragraph_.firstPiece && image < 0 && pieces.back().image < 0 &&
                        pieces.back().look == now_;
    if (!goesOn) pieces.push_back({document_.text.size(), 0, now_, image});
    pieces.back().length += text.size();
    document_.text += text;
    lineEmpty_ = false;
  }
  void Letters(QStringView text, int image = -1) {
    blank_ = false;
    Append(text, image);
  }

  // It belongs to what is in front of it.
  void Blank() {
    if (blank_ || lineEmpty_) return;
    Append(u" ");
    blank_ = true;
  }
  void TakeBack() {
    document_.text.chop(1);
    if (--document_.pieces.back().length == 0) document_.pieces.pop_back();
  }
  void EndLine() {
    if (blank_) TakeBack();
    blank_ = false;
    lineEmpty_ = true;
  }

  void EndParagraph() {
    EndLine();
    // A break at the end breaks nothing: the paragraph does.
    const bool broken =
        document_.text.size() > paragraph_.start && document_.text.back() == QChar::LineSeparator;
    if (broken) TakeBack();
    paragraph_.length = document_.text.size() - paragraph_.start;
    if (broken || paragraph_.length > 0 || !paragraph_.mark.isEmpty() || paragraph_.rule) {
      paragraph_.pieces = document_.pieces.size() - paragraph_.firstPiece;
      if (document_.paragraphs.empty()) paragraph_.apart = false;
      document_.paragraphs.push_back(paragraph_);
    }
    paragraph_ = {};
    paragraph_.start = document_.text.size();
    paragraph_.firstPiece = document_.pieces.size();
    paragraph_.indent = static_cast<int>(lists_.size());
  }
  // The gap is kept until something stands below it.
  void Separate(bool apart) {
    const bool waiting = paragraph_.apart && paragraph_.start == document_.text.size() &&
                         paragraph_.mark.isEmpty() && !paragraph_.rule;
    EndParagraph();
    paragraph_.apart = apart || waiting;
  }

  void Count(const Tag& tag) {
    int& open = open_[static_cast<std::size_t>(tag.kind)];
    if (!tag.closing)
      ++open;
    else if (open > 0)
      --open;
    lookChanged_ = true;
  }

  QString Value(const Tag& tag, const char* name) const {
    return Attribute(markup_, tag, QLatin1String(name));
  }

  void Take(const Tag& tag) {
    switch (tag.kind) {
      case TagKind::Font:
        return Font(tag);
      case TagKind::A:
        return Link(tag);
      case TagKind::Br:
        if (!tag.closing) {
          EndLine();
          Append(QStringView(&LineBreak, 1));
          lineEmpty_ = true;
        }
        return;
      case TagKind::P:
        Separate(true);
        if (!tag.closing) paragraph_.alignment = AlignmentOf(Value(tag, "align"));
        return;
      case TagKind::Hr:
        if (tag.closing) return;
        Separate(false);
        paragraph_.rule = true;
        return Separate(false);
      case TagKind::Img:
        return Image(tag);
      case TagKind::Ul:
      case TagKind::Ol:
        return ListTag(tag);
      case TagKind::Li:
        Separate(false);
        if (!tag.closing) Item();
        return;
      default:
        return Count(tag);
    }
  }

  void Font(const Tag& tag) {
    lookChanged_ = true;
    if (tag.closing) {
      if (!fonts_.empty()) fonts_.pop_back();
      return;
    }
    Look look = fonts_.empty() ? Look() : fonts_.back();
    look.color = ColorOf(Value(tag, "color").trimmed(), look.color);
    look.size = SizeOf(Value(tag, "size"), look.size);
    if (const QString face = Decoded(Value(tag, "face")).trimmed(); !face.isEmpty()) look.face = face;
    fonts_.push_back(std::move(look));
  }

  void Link(const Tag& tag) {
    lookChanged_ = true;
    if (tag.closing) {
      if (!links_.empty()) links_.pop_back();
      return;
    }
    links_.push_back(static_cast<int>(document_.links.size()));
    document_.links << Decoded(Value(tag, "href"));
  }

  void Image(const Tag& tag) {
    if (tag.closing) return;
    bool ok = false;
    int index = Value(tag, "index").trimmed().toInt(&ok);
    if (!ok) index = Value(tag, "src").trimmed().toInt(&ok);
    Letters(QStringView(&PictureEdge, 1));
    Append(QStringView(&PictureCharacter, 1), ok && index >= 0 ? index : INT_MAX);  // one that is nowhere
    Append(QStringView(&PictureEdge, 1));
  }

  void ListTag(const Tag& tag) {
    const bool numbered = tag.kind == TagKind::Ol;
    Separate(false);
    if (!tag.closing)
      lists_.push_back({numbered});
    else if (!lists_.empty() && lists_.back().numbered == numbered)
      lists_.pop_back();
    paragraph_.indent = static_cast<int>(lists_.size());
  }
  void Item() {
    const bool numbered = !lists_.empty() && lists_.back().numbered;
    paragraph_.mark = numbered ? QStringLiteral("%1.").arg(++lists_.back().count) : QStringLiteral("\u2022");
    paragraph_.indent = std::max(paragraph_.indent, 1);
  }

  static constexpr QChar LineBreak = QChar::LineSeparator;

  const QString markup_;
  Document document_;
  Paragraph paragraph_;
  int open_[static_cast<std::size_t>(TagKind::Sup) + 1] = {};
  std::vector<Look> fonts_;
  std::vector<int> links_;
  std::vector<List> lists_;
  Look now_;
  bool lookChanged_ = false;
  bool blank_ = false, lineEmpty_ = true;
};
}  // namespace

Document Parse(const QString& markup) { return Parser(markup).All(); }

}  // namespace html
