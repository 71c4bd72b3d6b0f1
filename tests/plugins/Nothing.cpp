// A shared library that is no plug-in.
extern "C" int ZafHartSomethingElse() {
  return 0;
}
