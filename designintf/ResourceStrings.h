// The IDE's own texts.
#pragma once
#include <QString>

enum class TResString { sLayoutCategoryName, sVisualCategoryName, sMiscCategoryName };
QString LoadResString(TResString id);
