// Every form of a folder: the project's own ones, or those of the folder that VRX_FORM_CORPUS names.
#include <QDir>

#include "tests/forms/FormTest.h"

using namespace formtest;

namespace {
struct FormFile {
  QString name;
  QByteArray bytes;
};

QString Folder() {
  const QString other = qEnvironmentVariable("VRX_FORM_CORPUS");
  return other.isEmpty() ? DataFolder() : other;
}

std::vector<FormFile> AllForms() {
  std::vector<FormFile> forms;
  const QDir folder(Folder());
  for (const QString& name :
       folder.entryList({QStringLiteral("*.dfm"), QStringLiteral("*.lfm")}, QDir::Files, QDir::Name))
    forms.push_back({name, ReadBytes(folder.filePath(name))});
  return forms;
}

QString ExpectedBinary(const FormFile& form) {
  return Folder() + QStringLiteral("/expected/") + form.name + QStringLiteral(".bin");
}

Document Load(const FormFile& form) { return Document::Parse(form.bytes, forms::DialectOfName(form.name)); }

std::vector<Object*> AllObjects(Document& doc) {
  std::vector<Object*> objects{&doc.Root()};
  for (std::size_t i = 0; i < objects.size(); ++i)
    for (const auto& child : objects[i]->children) objects.push_back(child.get());
  return objects;
}

int Level(const Object& object) {
  int level = 0;
  for (const Object* o = object.parent; o; o = o->parent) ++level;
  return level;
}

template <class F>
void ForEachForm(F test) {
  const std::vector<FormFile> forms = AllForms();
  ASSERT_FALSE(forms.empty()) << "no forms in " << Folder().toStdString();
  std::size_t refused = 0;
  for (const FormFile& form : forms) {
    SCOPED_TRACE(form.name.toStdString());
    try {
      test(form);
    } catch (const EFormError& e) {
      // A folder of other people's files may hold some that are not forms; they have no binary form either.
      const bool foreign = Folder() != DataFolder();
      EXPECT_TRUE(foreign && !QFile::exists(ExpectedBinary(form))) << e.what();
      ++refused;
    } catch (const std::exception& e) {
      ADD_FAILURE() << e.what();
    }
  }
  EXPECT_LE(refused * 20, forms.size()) << "too many files are refused";
}
}  // namespace

TEST(FolderOfForms, EveryFormIsWrittenAsItStood) {
  ForEachForm([](const FormFile& form) { EXPECT_TRUE(Load(form).Write() == form.bytes); });
}

TEST(FolderOfForms, TextsHaveTheBinaryFormThatIsExpected) {
  int compared = 0;
  ForEachForm([&](const FormFile& form) {
    const QString expected = ExpectedBinary(form);
    const Document doc = Load(form);
    if (doc.SourceFormat() != Format::Text || !QFile::exists(expected)) return;
    EXPECT_EQ(doc.WriteAs(Format::Binary).toHex().toStdString(), ReadBytes(expected).toHex().toStdString());
    ++compared;
  });
  EXPECT_GT(compared, 0);
}

TEST(FolderOfForms, TextsAreStableThroughTheirBinaryForm) {
  ForEachForm([](const FormFile& form) {
    const Document doc = Load(form);
    if (doc.SourceFormat() != Format::Text || doc.Source().contains("{$")) return;  // no templates
    const QByteArray binary = doc.WriteAs(Format::Binary);
    for (const Dialect& style : {Vcl(), doc.Style()}) {
      const QByteArray text = Document::Parse(binary, style).WriteAs(Format::Text);
      const QByteArray again = Document::Parse(text, style).WriteAs(Format::Binary);
      EXPECT_EQ(Document::Parse(again, style).WriteAs(Format::Text).toStdString(), text.toStdString());
      // Whole floats may have become integers; in the layout with fixed decimals nothing changes.
      if (style.fixedFloats) {
        EXPECT_EQ(again.toHex().toStdString(), binary.toHex().toStdString());
      }
    }
  });
}

TEST(FolderOfForms, StreamsComeBackFromTheirText) {
  ForEachForm([](const FormFile& form) {
    const Document doc = Load(form);
    if (doc.SourceFormat() == Format::Text) return;
    const QByteArray text = doc.WriteAs(Format::Text);
    EXPECT_EQ(Document::Parse(text).WriteAs(doc.SourceFormat()).toHex().toStdString(),
              form.bytes.toHex().toStdString());
  });
}

TEST(FolderOfForms, AReplacedPropertyChangesOnlyItsOwnLines) {
  ForEachForm([](const FormFile& form) {
    Document doc = Load(form);
    const bool text = doc.SourceFormat() == Format::Text;
    const qsizetype size = form.bytes.size();
    int budget = 400;  // of the properties of one form
    for (Object* object : AllObjects(doc)) {
      for (std::size_t i = 0; i < object->properties.size() && budget > 0; ++i, --budget) {
        const QByteArrayView node = object->properties[i].Node();
        const qsizetype begin = node.data() - doc.Source().data();
        const QByteArray name = object->properties[i].Name().toByteArray();
        Property original =
            std::exchange(object->properties[i], doc.MakeProperty(name, Value::Integer(12345)));
        const QByteArray changed = doc.Write();
        object->properties[i] = std::move(original);
        QByteArray before = form.bytes.first(begin);
        const QByteArray after = form.bytes.sliced(begin + node.size());
        QByteArray line;
        if (text) {
          if (!before.endsWith('\n') && !before.endsWith('\r')) before += doc.Style().eol;
          line = QByteArray(2 * (Level(*object) + 1), ' ') + name + " = 12345" + doc.Style().eol;
        } else {
          line = static_cast<char>(name.size()) + name + Hex("033930");
          if (doc.SourceFormat() == Format::Resource) {
            const qsizetype head = before.indexOf("TPF0") - 4;
            const auto rest = size - node.size() + line.size() - head - 4;
            for (int b = 0; b < 4; ++b) before[head + b] = static_cast<char>(rest >> (8 * b));
          }
        }
        // A word of the source that followed without a break gets a line of its own; such forms stay
        // readable.
        EXPECT_TRUE(changed == before + line + after) << name.toStdString();
      }
    }
    EXPECT_TRUE(doc.Write() == form.bytes);
  });
}

TEST(FolderOfForms, CanonicalValuesAreRegeneratedAsTheyStood) {
  // Counted over all forms, because some are not canonical.
  std::size_t same = 0, all = 0;
  ForEachForm([&](const FormFile& form) {
    Document doc = Load(form);
    if (doc.SourceFormat() != Format::Text) return;
    for (Object* object : AllObjects(doc)) {
      for (const Property& p : object->properties) {
        // The rest of the line may stand behind the value.
        QByteArray source = p.SourceValue().toByteArray().replace('\r', "");
        while (source.endsWith('\n') || source.endsWith(' ') || source.endsWith('\t')) source.chop(1);
        QByteArray written =
            forms::ValueToText(doc.Read(p), doc.Style(), Level(*object) + 1).replace('\r', "");
        if (written.startsWith('\n'))
          written = written.trimmed();  // the value's own place begins behind the indent
        ++all;
        if (source == written) ++same;
      }
    }
  });
  EXPECT_GT(static_cast<double>(same), 0.8 * static_cast<double>(all)) << same << " of " << all;
}
