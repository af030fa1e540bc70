// The commands of vrx. Results go to `out`, messages to `err`.
#pragma once
#include <QStringList>
#include <QTextStream>

class DesignRegistry;

// What a command leaves the process with.
enum ExitCode { ExitOk = 0, ExitFindings = 1, ExitUsage = 2, ExitCancelled = 3 };

struct Console {
  QTextStream& out;
  QTextStream& err;
  // A message: one line, whatever a file or package has put into it.
  void Tell(const QString& message) const;
};

struct CommandRow {
  const char* name;
  const char* arguments;
  const char* help;
  int (*run)(const QStringList& arguments, Console& console);
};
const std::vector<CommandRow>& CommandTable();

// Runs vrx with its arguments (without the program's name).
int RunVrx(const QStringList& arguments, Console& console);

// Wrong use of a command; ends with exit code 2.
struct UsageError {
  QString text;
};

// Splits arguments into options that take a value, flags, and the rest. Unknown options are a UsageError.
struct Arguments {
  QStringList values;
  QHash<QString, QString> options;
  bool Has(const QString& name) const { return options.contains(name); }
};
Arguments ParseArguments(const QStringList& list, const QStringList& withValue, const QStringList& flags);

// What packages have registered with vrx.
DesignRegistry& Host();
// Makes the host's classes and, when it can be loaded, the package's known; a package that cannot is told on
// `err`. Empty: the design-time package of the library. The name of what was loaded, empty for nothing.
QString LoadClasses(Console& console, bool labeled = false, const QString& package = {});

int CheckCommand(const QStringList& arguments, Console& console);
int ConvertCommand(const QStringList& arguments, Console& console);
int RenderCommand(const QStringList& arguments, Console& console);
int GetCommand(const QStringList& arguments, Console& console);
int SetCommand(const QStringList& arguments, Console& console);
int EditCommand(const QStringList& arguments, Console& console);
int DoCommand(const QStringList& arguments, Console& console);
int ActionsCommand(const QStringList& arguments, Console& console);
int PackageCommand(const QStringList& arguments, Console& console);
int GalleryCommand(const QStringList& arguments, Console& console);
int DescribeCommand(const QStringList& arguments, Console& console);
int Effect3DCommand(const QStringList& arguments, Console& console);
int RegionCommand(const QStringList& arguments, Console& console);
int StyleCommand(const QStringList& arguments, Console& console);
int RegistrationsCommand(const QStringList& arguments, Console& console);
