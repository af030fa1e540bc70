// The file of an open form: its name, and what it held when it was read or written here last. Its content
// tells what became of it; times and sizes are not asked.
#pragma once
#include <QByteArray>
#include <QString>

enum class DiskState { Same, Changed, Gone };

class FileOnDisk {
 public:
  FileOnDisk() = default;
  FileOnDisk(QString name, QByteArray bytes) : name_(std::move(name)), bytes_(std::move(bytes)) {}

  // Empty before it is saved for the first time; "-" for the standard streams.
  const QString& Name() const { return name_; }
  // Throws when the file cannot be read.
  DiskState State() const;
  // Replaces the file, unless another program changed or removed it meanwhile (EFileChanged). Throws when it
  // cannot be written; the old file is then untouched.
  void Write(QByteArray bytes);
  // Replaces any file and takes its name.
  void WriteAs(const QString& name, QByteArray bytes);
  // The person has seen what another program wrote; the next Write may replace it.
  void Accept(const QByteArray& seen) { bytes_ = seen; }

 private:
  QString name_;
  QByteArray bytes_;
};
