# The two commands a newcomer needs:
#   make run   builds Quillmere and starts it
#   make test  builds Quillmere and runs every test
# and one for whoever installs it:
#   make package  builds the Debian package in build/ and checks it with lintian
# All first install the Debian packages that are missing.

BUILD_DIR ?= build
JOBS ?= $(shell nproc 2>/dev/null || echo 2)
# CI sets QUILLMERE_WERROR=ON; otherwise the build folder keeps the setting it has.
CMAKE_OPTIONS := $(if $(QUILLMERE_WERROR),-DQUILLMERE_WERROR=$(QUILLMERE_WERROR))

.PHONY: run test package build configure deps bench format clean

run: build
	$(BUILD_DIR)/FileUtilities/shell/quillmere

test: build
	cd $(BUILD_DIR) && ctest --output-on-failure --timeout 600 -j $(JOBS)

# lintian fails the package on any error, as Debian's archive would.
package: build
	cd $(BUILD_DIR) && cpack -G DEB
	lintian --fail-on error $(BUILD_DIR)/quillmere_*.deb

build: configure
	cmake --build $(BUILD_DIR) --parallel $(JOBS)

configure: deps
	cmake -S . -B $(BUILD_DIR) $(CMAKE_OPTIONS)

deps:
	@tools/install-deps.sh

bench: build
	bench/run.sh

format:
	git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	rm -rf $(BUILD_DIR)
