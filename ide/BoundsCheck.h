// Edits of a place or size that the layout takes back.
#pragma once
#include "vcl/Control.h"

// Throws EPropertyError, saying what decides instead or why it cannot be, when `prop` is a place or size of a
// control and is not `wanted` although that was just set.
void RequireBoundsTaken(const TPersistent& instance, const TPropInfo& prop, std::int64_t wanted);

// Whether a control's property of that name is one of its places and sizes.
bool IsBoundsProperty(QByteArrayView name);

// Whether something else decides where the control stands: an alignment, or a container that places all.
bool DecidesBounds(const TControl& control);
// "Panel1 is aligned (Align = alTop): Form1 decides its place and width."
QString WhatDecidesBounds(const TControl& control);
