#pragma once
#include <gtest/gtest.h>

#include <QtCore>
#include <QtTest>
#include <QtWidgets>
