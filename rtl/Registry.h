// Per-user settings: keys with named values, below one file in the user's configuration folder. Names are
// compared without regard to case and kept as first written.
#pragma once
#include <QStringList>
#include <QVariant>
#include <memory>
#include <optional>

#include "rtl/Exceptions.h"

class QSettings;

// Settings could not be written.
class ERegistryException : public Exception {
 public:
  using Exception::Exception;
};

class TRegistry {
 public:
  TRegistry();
  ~TRegistry();

  // Selects the key, written with backslashes ("SOFTWARE\\Orlenvo\\Orlenvo-Kit 2025"); false when it does not
  // exist and must not be created.
  bool OpenKey(const QString& key, bool canCreate);
  bool KeyExists(const QString& key) const;
  bool ValueExists(const QString& name) const;
  QString ReadString(const QString& name, const QString& otherwise = {}) const;
  int ReadInteger(const QString& name, int otherwise = 0) const;
  bool ReadBool(const QString& name, bool otherwise = false) const;
  void WriteString(const QString& name, const QString& value);
  void WriteInteger(const QString& name, int value);
  void WriteBool(const QString& name, bool value);
  // Bytes of any kind. A value that is none of these, or is damaged, reads as nothing at all.
  std::optional<QByteArray> ReadBinary(const QString& name) const;
  void WriteBinary(const QString& name, const QByteArray& value);
  bool DeleteValue(const QString& name);
  void DeleteKey(const QString& key);
  QStringList ValueNames() const;
  QStringList KeyNames() const;
  // Writes out what was set; false when that fails.
  bool Flush();

  // Where all settings are kept. Empty restores the user's own place; tests use a file of their own.
  static void SetStorageFile(const QString& file);
  static QString StorageFile();

 private:
  QString Find(const QStringList& names, const QString& wanted) const;
  QString Resolve(const QString& key) const;
  void Select(const QString& path) const;

  std::unique_ptr<QSettings> settings_;
  QString path_;
};

// A registry key with one section per editor.
class TRegIniFile {
 public:
  explicit TRegIniFile(QString key) : key_(std::move(key)) {}
  QString ReadString(const QString& section, const QString& name, const QString& otherwise) const;
  int ReadInteger(const QString& section, const QString& name, int otherwise) const;
  bool ReadBool(const QString& section, const QString& name, bool otherwise) const;
  void WriteString(const QString& section, const QString& name, const QString& value);
  void WriteInteger(const QString& section, const QString& name, int value);
  void WriteBool(const QString& section, const QString& name, bool value);
  void EraseSection(const QString& section);
  QStringList ReadSection(const QString& section) const;
  // Ends a series of writes. Throws ERegistryException, naming the file, when one of them failed.
  void UpdateFile();

 private:
  QString key_;
  bool failed_ = false;
};
