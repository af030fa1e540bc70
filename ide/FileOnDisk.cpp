#include "ide/FileOnDisk.h"

#include <QFileInfo>

#include "forms/FormFile.h"

DiskState FileOnDisk::State() const {
  if (name_ == QStringLiteral("-")) return DiskState::Same;
  if (!QFileInfo::exists(name_)) return DiskState::Gone;
  return forms::ReadFile(name_) == bytes_ ? DiskState::Same : DiskState::Changed;
}

void FileOnDisk::Write(QByteArray bytes) {
  forms::WriteFile(name_, bytes, &bytes_);
  bytes_ = std::move(bytes);
}

void FileOnDisk::WriteAs(const QString& name, QByteArray bytes) {
  forms::WriteFile(name, bytes, nullptr);
  bytes_ = std::move(bytes);
  name_ = name;
}
