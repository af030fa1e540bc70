// Every class that a form may hold, and every value inside one.
#pragma once
#include "designintf/DesignRegistry.h"
#include "forms/Binding.h"
#include "forms/PropertyValues.h"
#include "rtl/Class.h"
#include "vcl/Form.h"

// What the standard and the package register, in a registry of its own.
DesignRegistry& Registrations();

// Names of the classes that are registered and can be created: the standard ones and the library's.
std::vector<std::string> ConcreteClasses();

// A form with one component of the class on it; the form itself when that is the class.
struct Stage {
  explicit Stage(const TClass& cls);
  std::unique_ptr<TForm> form;
  TComponent* subject = nullptr;
};

// Paths of all values, those of parts included ("LED.Thickness", "Lines.Strings"); "Name" is left out.
QByteArrayList ValuePaths(TPersistent& instance);
// The value of a path as form text.
QByteArray ValueText(TComponent& subject, const QByteArray& path);
// Also a place that an alignment decides.
bool IsReadOnly(TComponent& subject, const QByteArray& path);
// Gives the value another one that the property accepts; `turn` chooses among several. False when there is
// none.
bool SetAnother(Stage& stage, const QByteArray& path, unsigned turn);
