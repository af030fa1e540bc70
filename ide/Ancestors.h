// What a form inherits: the ancestor of an inherited form and the frames inside, found in the files beside
// it. They are read and never written.
//
// An object that is inherited gets its origin, an object of another file. What an ancestor has and the form
// says nothing of gets an object, too, which is written only when an edit gives it something to say.
#pragma once
#include <map>

#include "forms/FormReader.h"
#include "ide/FormFolder.h"

class Ancestors {
 public:
  // Of the form in that file; without a name nothing is beside it.
  explicit Ancestors(QString fileName);
  ~Ancestors();

  // Of the whole document, or of an object that has come into it. Gives what could not be found or read, once
  // each. Doing it again changes nothing.
  std::vector<forms::Finding> Complete(forms::Document& document);
  std::vector<forms::Finding> Complete(const forms::Document& document, forms::Object& object);
  // The files that hold something else now than was read, or are gone.
  QStringList Changed() const;
  // Whether anything comes from another file.
  bool Any() const { return !files_.empty(); }

 private:
  struct File {
    std::optional<forms::Document> document;  // none: it could not be read
    bool reading = true;
    QStringList problems;  // its own and those of what it stands on
  };
  struct Scope;
  class Completing;

  const FormFolder& Folder();
  // The file of that class; null, with a problem told, when there is none.
  File* FileOf(const QByteArray& className, QStringList& problems);
  File* AncestorOf(const QByteArray& className, const QString& formFile, QStringList& problems);

  QString fileName_;
  std::unique_ptr<FormFolder> folder_;
  std::map<QString, File> files_;
  File* ancestor_ = nullptr;  // of the form itself, once it is known: its class may be renamed
  QStringList path_;          // the classes whose files are being read, for telling of circles
  int implied_ = 0;           // in all these files
};
