// The documentation of all components as Markdown, made from what their classes say of themselves.
#pragma once
#include <QString>

class DesignRegistry;

QString ComponentsPage(DesignRegistry& registry);
