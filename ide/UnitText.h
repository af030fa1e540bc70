// What a unit beside a form tells of the form's class.
#pragma once
#include <QByteArray>

// The class that the unit declares as the ancestor of another; empty when it does not declare that one.
// Comments and strings are no declarations; names are compared without regard to case.
QByteArray DeclaredAncestor(QByteArrayView unit, QByteArrayView className);
