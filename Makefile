# Short names for the usual jobs. Everything that they do can also be done with the presets of CMakePresets.json.
PREFIX ?= /usr/local
ARGS ?=
.PHONY: gallery test check matrix bench chaos long-life memcheck fuzz build-matrix docs windows translations install

gallery: ## build and start the gallery; ARGS="--screenshots DIR" and other options are handed to it
	@tools/install-dependencies build && tools/build dev kqtui-gallery && build/dev/examples/gallery/kqtui-gallery $(ARGS)
test: ## release build with warnings as errors, then every test
	@tools/install-dependencies build test && tools/build release && ctest --preset release
check: ## everything that a change must pass
	@.ci/run
matrix: ## the tests at other scales, right to left, with other styles and locales, under Wayland, on Windows; ARGS="ROW..." for some
	@tools/install-dependencies build test windows matrix && tools/build release && tools/build-windows-sysroot && tools/build windows && tools/run-matrix $(ARGS)
bench: ## every benchmark beside its peers; ARGS are handed to each
	@tools/install-dependencies build test && tools/build release && tools/run-benchmarks build/release $(ARGS)
chaos: ## 100,000 random things with every component, under the sanitizers; ARGS="--seed N" for others
	@tools/install-dependencies build test checks && tools/build asan kqtui-chaos && QT_QPA_PLATFORM=offscreen LSAN_OPTIONS=suppressions=tests/support/lsan.supp:print_suppressions=0 build/asan/tests/chaos/kqtui-chaos $(ARGS)
fuzz: ## every fuzzer for an hour or ten million inputs; ARGS are libFuzzer's
	@tools/install-dependencies build checks && tools/build fuzz && tools/run-fuzzers build/fuzz -runs=10000000 -max_total_time=3600 $(ARGS)
build-matrix: ## the library built by g++ and clang, in both standards, at every level, linked at last, shared and static
	@tools/install-dependencies build test checks && tools/run-build-matrix $(ARGS)
long-life: ## an hour with an application that must not grow; ARGS="--minutes N" for another time
	@tools/install-dependencies build test && tools/build release kqtui-long-life && QT_QPA_PLATFORM=offscreen dbus-run-session -- build/release/tests/longlife/kqtui-long-life $(ARGS)
memcheck: ## every test program under valgrind's memcheck; ARGS="tst_Check tst_PenPicker" for some
	@tools/install-dependencies build test memcheck && tools/build dev && tools/run-memcheck build/dev $(ARGS)
docs: ## the reference in build/release/docs/html
	@tools/install-dependencies build test docs && tools/build release docs
windows: ## cross-build for Windows and run its tests under wine
	@tools/install-dependencies build windows && tools/build-windows-sysroot && tools/build windows && ctest --preset windows
translations: ## take new texts over into translations/*.ts
	@tools/install-dependencies build && tools/update-translations
install: ## install the release build to PREFIX; DESTDIR is respected
	@tools/install-dependencies build test && tools/build release KQtUi KQtUiDesigner kqtui-translations && cmake --install build/release --prefix "$(PREFIX)"
