// Loads a plug-in and asks it. usage: loader FILE

#include <cstdio>

#include <dlfcn.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  void* plug_in = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
  void* question = plug_in != nullptr ? dlsym(plug_in, "AskPlugIn") : nullptr;
  if (question == nullptr) {
    std::fprintf(stderr, "%s\n", dlerror());
    return 2;
  }
  return reinterpret_cast<int (*)()>(question)();
}
