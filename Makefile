# The door: every word calls one script of scripts/, which tells more with --help.

help:
	@echo 'make run [PROJECT=path]          convert a copy of the sample project, or of yours, and show the log'
	@echo 'make gallery                     every control in all its states; without a display, pictures of them'
	@echo 'make test                        everything that must hold, in both builds; ends with one summary'
	@echo 'make bench                       how fast it is, as ratios against what you would use instead'
	@echo 'make fuzz [TARGET=name]          throw random input at what reads files (FUZZ_SECONDS, default 600)'
	@echo 'make format                      lay the sources out as .clang-format says'
	@echo 'make clean                       remove build/ and out/'

run:
	@scripts/run $${PROJECT:+"$$PROJECT"}

gallery:
	@scripts/gallery

test:
	@scripts/test

bench:
	@scripts/bench

fuzz:
	@scripts/fuzz $${TARGET:+"$$TARGET"}

format:
	@scripts/format

clean:
	@scripts/clean

.PHONY: help run gallery test bench fuzz format clean
