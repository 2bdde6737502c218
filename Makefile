# The two commands of the README: `make run` and `make test`.
BUILD ?= build
DATA ?= $(CURDIR)/dados
JOBS ?= 2
# Debian packages the build needs; installed only when absent.
PACKAGES = g++ cmake make pkg-config libsqlite3-dev libgtest-dev googletest libbenchmark-dev qt6-base-dev \
  libcairo2-dev libzint-dev libxlsxwriter-dev fonts-liberation zbar-tools poppler-utils unzip

.PHONY: deps configure build run test bench clean

deps:
	@missing=""; for p in $(PACKAGES); do \
	  dpkg-query -W -f='$${Status}' $$p 2>/dev/null | grep -q "install ok installed" || missing="$$missing $$p"; \
	done; \
	if [ -n "$$missing" ]; then \
	  echo "Installing:$$missing"; \
	  SUDO=""; [ "$$(id -u)" -ne 0 ] && SUDO=sudo; \
	  $$SUDO apt-get update -qq && DEBIAN_FRONTEND=noninteractive $$SUDO apt-get install -y -qq $$missing; \
	fi

configure: deps
	@cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null

build: configure
	@cmake --build $(BUILD) -j $(JOBS)

run: build
	@$(BUILD)/mostruz --pasta "$(DATA)"

test: build
	@cd $(BUILD) && ctest -j $(JOBS) --output-on-failure

bench: configure
	@cmake --build $(BUILD) -j $(JOBS) --target mostruz_bench mostruz
	@$(BUILD)/mostruz_bench $(BUILD)/bench-data

clean:
	rm -rf $(BUILD)
