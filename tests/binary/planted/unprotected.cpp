// Loads libraries by their names, as a program does that does not say where they are to come from.
#include <windows.h>

int wmain(int count, wchar_t** names) {
  for (int i = 1; i < count; ++i) LoadLibraryW(names[i]);
  return 0;
}
