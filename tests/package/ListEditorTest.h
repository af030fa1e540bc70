// What the tests of the list and expression editors share: editors as the package registers them, on open
// forms, with answers for the person.
#pragma once
#include <QtTest>
#include <QtWidgets>

#include "dclstd/StandardEditors.h"
#include "designintf/CustomColors.h"
#include "ide/FormSession.h"
#include "package/registration/VRX_RegMain.h"
#include "package/registration/VRX_RegMainEditors.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "tests/designintf/DesignTest.h"
#include "tests/support/Fields.h"
#include "tests/support/Modal.h"
#include "tests/support/Prompted.h"
#include "tests/support/Vectors.h"
#include "vcl/Form.h"

class ListEditors : public testing::Test {
 protected:
  ListEditors() {
    RegisterStandard(registry);
    const RegistrationScope scope(registry, this, "package");
    VRX_RegMain::Register();
    VRX_RegMainEditors::Register();
  }
  void SetUp() override { SaveIDECustomColors({}); }
  std::unique_ptr<TPropertyEditor> Of(const std::vector<TPersistent*>& instances, const char* name,
                                      IDesigner* forDesigner = nullptr) {
    TInstProps props;
    for (TPersistent* p : instances) props.push_back({p, &p->ClassType().GetProp(name)});
    return registry.CreatePropertyEditor(forDesigner ? forDesigner : &designer, std::move(props));
  }
  // Opens the editor's dialog on the first component of a form, as one command.
  template <class D>
  void Edit(FormSession& session, TComponent& component, const char* name,
            const std::function<void(D&)>& act) {
    modal::NextOf<D>([&](D& dialog) { act(dialog); });
    const auto editor = Of({&component}, name, &session);
    session.Run(QStringLiteral("edit"), {&component}, [&] { editor->Edit(); });
  }
  static std::unique_ptr<FormSession> FormWith(const QByteArray& object, DesignRegistry& registry) {
    return FormSession::FromBytes("object Form1: TForm1\n  Left = 0\n  Top = 0\n" + object + "end\n", {},
                                  registry);
  }
  DesignRegistry registry;
  FakeDesigner designer;
  ScriptedPrompts prompts;
};
