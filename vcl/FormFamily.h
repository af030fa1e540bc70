// Two families of frameworks keep the same thing in different ways. What is new is kept as the form's does.
#pragma once

class TPersistent;

// Whether the object stands on a form of the family whose Width and Height are the client area's.
bool StandsOnClientSizedForm(const TPersistent& object);
