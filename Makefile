# Short names for CMake builds. Each target first installs the packages that it needs and this machine
# lacks, on Debian and its family; NO_INSTALL=1 uses the machine as it is.
MAKEFLAGS += --no-print-directory
INSTALL := $(if $(NO_INSTALL),@:,@scripts/install-packages)
SECONDS_PER_TARGET ?= 60
KILLS ?= 500

.PHONY: help run tour test sanitize bench fuzz torture windows test-zips test-windows bench-windows \
	package test-package format lint clean

help:
	@echo 'make run           build Zorvane and start it; without a display, run the tour'
	@echo 'make tour          drive every window on a virtual display and take screenshots'
	@echo 'make test          build everything and run every test'
	@echo 'make sanitize      run the tests with address and undefined-behaviour sanitizers'
	@echo 'make bench         run the benchmarks'
	@echo 'make fuzz          run each fuzz target for a minute (SECONDS_PER_TARGET=60)'
	@echo 'make torture       kill saves, make system calls fail, read hostile files (KILLS=500)'
	@echo 'make windows       build the Windows programs and their zips, in dist/'
	@echo 'make test-zips     check that the same sources make the same zips'
	@echo 'make test-windows  run the tests of the Windows build under Wine'
	@echo 'make bench-windows measure the start of the Windows program under Wine'
	@echo 'make package       build the Debian package, in dist/'
	@echo 'make test-package  install, try and purge the Debian package on this machine'
	@echo 'make format        format every source'
	@echo 'make lint          check layers, format and clang-tidy'
	@echo 'make clean         remove build/ and dist/, and keep your settings in run/'
	@echo 'With NO_INSTALL=1 nothing is installed.'

# The player's files are kept in run/, which `make clean` leaves alone.
run:
	$(INSTALL) build desktop engines
	cmake --preset release -DZORVANE_TESTS=OFF
	cmake --build build/release --target zorvane
	cmake --install build/release --prefix build/installed >/dev/null
	@if [ -n "$$DISPLAY$$WAYLAND_DISPLAY" ]; then \
		ZORVANE_HOME='$(CURDIR)/run' build/installed/bin/zorvane; else $(MAKE) tour; fi

tour:
	$(INSTALL) build desktop engines test display
	cmake --preset release -DZORVANE_TESTS=ON
	cmake --build build/release --target zorvane cut_map
	tests/e2e/tour build/release/src/zorvane build/release/tests/e2e/cut_map build/tour

test:
	$(INSTALL) build desktop engines test display
	cmake --preset release -DZORVANE_TESTS=ON
	cmake --build build/release
	@scripts/run-tests build/release

# Leaks inside Qt and its drivers are not ours, so leaks are checked in the other tests only.
sanitize:
	$(INSTALL) build desktop engines test display
	cmake --preset asan
	cmake --build build/asan
	@ASAN_OPTIONS=detect_leaks=0 scripts/run-tests build/asan --label-regex qt --label-exclude e2e
	@scripts/run-tests build/asan --label-exclude 'qt|e2e'

bench:
	$(INSTALL) build desktop bench display
	@scripts/get-libucl build/bench/libucl
	cmake --preset bench
	cmake --build build/bench
	@scripts/run-bench build/bench

fuzz:
	$(INSTALL) build fuzz
	cmake --preset fuzz
	cmake --build build/fuzz --target fuzz/all
	@scripts/run-fuzz build/fuzz $(SECONDS_PER_TARGET)

torture:
	$(INSTALL) build desktop test display torture
	cmake --preset release -DZORVANE_TESTS=ON
	cmake --build build/release --target zorvane headless
	@xvfb-run -a tests/torture/torture build/release $(KILLS)

windows:
	$(INSTALL) build windows
	cmake --preset win64 -DZORVANE_TESTS=OFF
	cmake --build build/win64 --target zorvane
	cmake --preset win32 -DZORVANE_TESTS=OFF
	cmake --build build/win32 --target zorvane
	packaging/windows/pack

test-zips: windows
	packaging/windows/check

# headless, a program of the Linux build, reads the settings that the Windows program wrote.
test-windows:
	$(INSTALL) build desktop windows wine test display
	cmake --preset release -DZORVANE_TESTS=ON
	cmake --build build/release --target headless
	cmake --preset win64 -DZORVANE_TESTS=ON
	cmake --build build/win64
	@tests/windows/under-wine scripts/run-tests build/win64

bench-windows:
	$(INSTALL) build desktop bench windows wine display
	cmake --preset bench
	cmake --build build/bench --target measure_startup
	cmake --preset win64 -DZORVANE_BENCH=ON
	cmake --build build/win64 --target zorvane bare_window
	@tests/windows/under-wine bench/startup-windows/run build/bench/bench/measure_startup build/win64

package:
	$(INSTALL) build desktop package
	packaging/debian/pack

test-package: package
	$(INSTALL) engines display
	packaging/debian/check

format:
	$(INSTALL) lint
	scripts/format

lint:
	$(INSTALL) build desktop engines test lint
	scripts/check-layers --self-test
	scripts/check-layers
	scripts/format --check
	cmake --preset release -DZORVANE_TESTS=ON
	scripts/check-tidy build/release

clean:
	rm -rf build dist
