#include "ide/PictureBudget.h"

#include "ide/StandIns.h"
#include "rtl/ClassRegistry.h"
#include "vcl/ImageListData.h"
#include "vcl/Picture.h"
#include "vcl/PictureHead.h"

using namespace forms;

namespace {
constexpr qsizetype HeadSize = 128;          // of a picture, and what stands in front of it
constexpr std::int64_t AnySize = INT64_MAX;  // whether the rest is there is the decoder's question

int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  const int letter = c | 0x20;
  return letter >= 'a' && letter <= 'f' ? letter - 'a' + 10 : -1;
}

QByteArray HexHead(QByteArrayView text) {
  QByteArray head;
  int high = -1;
  for (const char c : text.sliced(1)) {
    const int digit = HexValue(c);
    if (digit < 0 && c != ' ' && c != '\t' && c != '\r' && c != '\n') break;
    if (digit < 0) continue;
    if (high >= 0) head += static_cast<char>(high << 4 | digit);
    high = high >= 0 ? -1 : digit;
    if (head.size() == HeadSize) break;
  }
  return head;
}

// Behind a class name, a length or both. Whether the length is right is the decoder's question.
QByteArrayView PictureStart(QByteArrayView head) {
  constexpr qsizetype Length = 4;
  const QByteArrayView inside = PictureInside(head);
  return !IsStoredPicture(inside) && inside.size() > Length ? inside.sliced(Length) : inside;
}

// A picture, or all pictures of a list.
std::int64_t CostOfHead(QByteArrayView head) {
  try {
    const QByteArrayView inside = PictureStart(head);
    return IsStoredPicture(inside) ? StoredPictureHead(inside, AnySize).DecodedBytes()
                                   : ImageListDecodedBytes(head);
  } catch (const EInvalidPicture&) {
    return 0;  // it will not be decoded
  }
}

std::int64_t CostOf(const Value& value) {
  std::int64_t sum = value.type == ValueType::Binary ? CostOfHead(value.bytes) : 0;
  for (const Value& item : value.items) sum += CostOf(item);
  for (const CollectionItem& item : value.collection)
    for (const NamedValue& p : item.properties) sum += CostOf(p.value);
  return sum;
}

// Binary data costs a look at its first bytes, everything else one at its first character.
std::int64_t CostOf(const Document& document, const Property& property) {
  if (const Value* edited = property.Edited()) return CostOf(*edited);
  const QByteArrayView source = property.SourceValue();
  if (source.isEmpty()) return 0;
  const bool text = document.SourceFormat() == Format::Text;
  const auto code = static_cast<ValueType>(source[0]);
  if (text ? source[0] == '<' : code == ValueType::Collection) return CostOf(document.Read(property));
  if (text) return source[0] == '{' ? CostOfHead(HexHead(source)) : 0;
  constexpr qsizetype CodeAndLength = 5;
  if (code != ValueType::Binary || source.size() < CodeAndLength) return 0;
  return CostOfHead(source.sliced(CodeAndLength, std::min(source.size() - CodeAndLength, HeadSize)));
}

class PictureSum {
 public:
  explicit PictureSum(const Document& document) : document_(document) {}
  void Add(const Object& object) {
    // What no class knows is kept and, but for what stand-ins show, never decoded.
    const bool known = IsKnown(object.className);
    for (const Origin* origin : object.Origins())
      for (const Property& p : origin->object->properties)
        Add(known, *origin->document, p, [&] { return document_.Where(object); });
    for (const Property& p : object.properties) Add(known, document_, p, [&] { return document_.Where(p); });
    for (const auto& child : object.children) Add(*child);
  }

 private:
  template <class F>
  void Add(bool known, const Document& document, const Property& p, const F& where) {
    if (!known && !StandInShowsPicture(p.Name())) return;
    sum_ += CostOf(document, p);
    if (sum_ > MaxFormPictureBytes)
      throw EFormError(
          QStringLiteral("The pictures of the form up to here would take more than %1 MB of memory; "
                         "that is not read. Use fewer or smaller pictures")
              .arg(MaxFormPictureBytes >> 20),
          where());
  }
  bool IsKnown(const QByteArray& className) {
    auto it = known_.find(className);
    if (it == known_.end()) it = known_.insert(className, FindClass(className) != nullptr);
    return *it;
  }
  const Document& document_;
  QHash<QByteArray, bool> known_;
  std::int64_t sum_ = 0;
};
}  // namespace

void RequirePictureBudget(const Document& document, bool edited) {
  // Most forms have no picture, which one look at the whole text tells.
  if (edited || document.SourceFormat() != Format::Text || document.Source().contains('{'))
    PictureSum(document).Add(document.Root());
}
