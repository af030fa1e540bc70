// Which of the form files in a folder has a root of which class. Only the heads of the files are read, and
// nothing is written.
#pragma once
#include <QHash>
#include <QString>

// The class of the root, from the first bytes of a form file of any kind; empty when they are none.
QByteArray RootClassOf(QByteArrayView head);

class FormFolder {
 public:
  // That of a form; only files with the same ending belong to it.
  explicit FormFolder(const QString& formFile);
  const QString& Name() const { return folder_; }
  // The file whose root is of that class (no regard to case); empty when there is none.
  QString FileOf(const QByteArray& className) const;
  // The unit of a form; empty when it is not there.
  QString UnitOf(const QString& formFile) const;

 private:
  QString folder_;
  QHash<QByteArray, QString> files_;  // by class in lower case
  QHash<QString, QString> units_;     // by base name in lower case
};
