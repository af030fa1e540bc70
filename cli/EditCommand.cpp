#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QEventLoop>
#include <QMessageBox>
#include <QPointer>

#include "cli/Commands.h"
#include "cli/OpenForm.h"
#include "ide/InspectorModel.h"
#include "rtl/Exceptions.h"

namespace {
// Which window an editor opens, and how it is closed. Messages are no editors; what they say is said.
class WindowWatch : public QObject {
 public:
  WindowWatch() { qApp->installEventFilter(this); }

  // Waits for a window that stays open behind the editor's call.
  void WaitUntilClosed() {
    if (!window_ || !window_->isVisible()) return;
    QEventLoop loop;
    wait_ = &loop;
    loop.exec();
  }
  bool Came() const { return came_; }
  bool Told() const { return told_; }
  // A window without OK and Cancel has done what it did.
  bool Confirmed() const { return !cancelled_; }

 private:
  bool eventFilter(QObject* object, QEvent* event) override {
    auto* window = qobject_cast<QWidget*>(object);
    told_ |= event->type() == QEvent::Show && qobject_cast<QMessageBox*>(object);
    if (event->type() == QEvent::Show && !came_ && IsEditor(window)) {
      came_ = true;
      window_ = window;
      if (auto* dialog = qobject_cast<QDialog*>(window); dialog && dialog->isModal())
        connect(dialog, &QDialog::finished, this,
                [this](int result) { cancelled_ = result != QDialog::Accepted; });
    }
    if (event->type() == QEvent::Hide && wait_ && window == window_) wait_->quit();
    return false;
  }
  static bool IsEditor(const QWidget* widget) {
    return widget && widget->isWindow() && widget->windowType() != Qt::ToolTip &&
           widget->windowType() != Qt::Popup && !qobject_cast<const QMessageBox*>(widget);
  }

  QPointer<QWidget> window_;
  QEventLoop* wait_ = nullptr;
  bool came_ = false, cancelled_ = false, told_ = false;
};
}  // namespace

int EditCommand(const QStringList& list, Console& console) {
  const Arguments args = ParseArguments(list, {QStringLiteral("-o")}, {});
  if (args.values.size() != 2 || !args.values[1].contains(u'.'))
    throw UsageError{QStringLiteral("FORM and COMPONENT.PROPERTY are needed")};
  LoadClasses(console);
  const auto session = OpenForm(args.values[0]);
  QByteArray path;
  TComponent& component = ComponentOf(*session, args.values[1], path);
  const QString property = QString::fromUtf8(path), cls = QString::fromUtf8(component.StreamClassName());
  if (property.isEmpty())
    throw UsageError{
        QStringLiteral("%1 is a component; one of its properties is needed").arg(component.Name())};
  session->Select({&component});
  InspectorModel inspector;
  inspector.SetSession(session.get());
  const QModelIndex row = inspector.IndexOfPath(property);
  if (!row.isValid())
    throw Exception(QStringLiteral("%1: %2 has no property \"%3\"").arg(component.Name(), cls, property));
  const QString full = component.Name() + u'.' + property;
  const auto& editor = *inspector.EditorAt(row);
  if (!AskEditor(editor, "GetAttributes", TPropertyAttributes{}, [&] {
         return editor.GetAttributes();
       }).Contains(TPropertyAttribute::paDialog))
    throw Exception(QStringLiteral("%1 has no editor dialog; vrx set changes it").arg(full));
  if (qApp->property("vrxNoDisplay").toBool())
    throw Exception(QStringLiteral("There is no display to show the editor of %1 on").arg(full));
  const QByteArray before = session->Bytes();
  WindowWatch watch;
  if (const QString problem = inspector.RunDialog(row); !problem.isEmpty())
    throw Exception(QStringLiteral("%1: %2").arg(full, problem));
  watch.WaitUntilClosed();
  if (!watch.Came() && watch.Told()) return ExitFindings;
  if (!watch.Came()) throw Exception(QStringLiteral("The editor of %1 opened nothing").arg(full));
  if (!watch.Confirmed()) return ExitCancelled;
  if (args.Has(QStringLiteral("-o")) || session->Bytes() != before)
    WriteForm(*session, args.options.value(QStringLiteral("-o"), args.values[0]));
  return ExitOk;
}
