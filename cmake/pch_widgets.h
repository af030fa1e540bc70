#pragma once
#include <QtGui>
#include <QtWidgets>
#include "cmake/pch_core.h"
