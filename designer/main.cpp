#include <QCommandLineParser>
#include <QTextStream>

#include "dclstd/StandardEditors.h"
#include "designer/Application.h"
#include "designer/LookSettings.h"
#include "designer/MainWindow.h"
#include "designer/PackageSettings.h"
#include "designer/Pictures.h"
#include "rtl/Exceptions.h"
#include "rtl/OwnMessages.h"
#include "rtl/Printable.h"
#include "vcl/Prompts.h"
#include "vcl/Theme.h"

int main(int argc, char** argv) {
  std::FILE* const messages = TakeStandardError();
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
    std::fprintf(TakeStandardError(), "%s\n", qPrintable(Printable(text)));
  });
  DesignerApplication app(argc, argv);
  QCommandLineParser options;
  options.setApplicationDescription(QObject::tr("Designs forms."));
  options.addHelpOption();
  options.addVersionOption();
  options.addPositionalArgument(QStringLiteral("form"), QObject::tr("The form to open."),
                                QStringLiteral("[form]"));
  const QCommandLineOption theme(QStringLiteral("theme"), QObject::tr("light or dark."),
                                 QStringLiteral("theme"));
  const QCommandLineOption pictures(
      QStringLiteral("pictures"),
      QObject::tr("Writes pictures of the designer at work into the folder and ends."),
      QStringLiteral("folder"));
  options.addOption(theme);
  options.addOption(pictures);
  options.process(app);

  const QString wanted = options.value(theme);
  RestoreTheme();
  if (wanted == QStringLiteral("dark")) ApplyTheme(TTheme::Dark);
  if (wanted == QStringLiteral("light")) ApplyTheme(TTheme::Light);
  UseThemeIcons();
  RestoreEditorOptions();
  DesignRegistry registry;
  RegisterStandard(registry);
  PackageManager packages(PackageManager::DefaultFolders(), registry);
  QString packageProblem;
  try {
    packages.Load(PackageManager::DefaultPackage());
  } catch (const std::exception& e) {
    packageProblem = ExceptionMessage(e);
  }
  if (packageProblem.isEmpty()) packageProblem = packages.Warnings().join(u'\n');

  const QString form = options.positionalArguments().value(0);
  if (options.isSet(pictures)) {
    QTextStream err(messages);
    if (!packageProblem.isEmpty()) err << Printable(packageProblem) << Qt::endl;
    try {
      for (const QString& file : TakePictures(packages, form, options.value(pictures)))
        QTextStream(stdout) << file << Qt::endl;
      return 0;
    } catch (const std::exception& e) {
      err << Printable(ExceptionMessage(e)) << Qt::endl;
      return 1;
    }
  }

  MainWindow window(packages);
  window.show();
  // Without its package the designer still opens forms; unknown components are named frames then.
  if (!packageProblem.isEmpty()) Prompts().Warn(&window, QObject::tr("Package"), packageProblem);
  if (form.isEmpty() || !window.OpenForm(form)) window.NewForm();
  return app.exec();
}
