#!/usr/bin/env bash
# prepare.sh SOURCES FOLDER
# Puts the SVG renderer of Qt 5.15 (the source package qtsvg-opensource-src), changed so that it compiles with Qt 6, into a
# folder.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
from=$1/src/svg to=$2
mkdir -p "$to/QtSvg"
for name in qsvg{font,graphics,handler,node,structure,style,tinydocument}{.cpp,_p.h} \
    qsvgrenderer.{cpp,h} qtsvgglobal{,_p}.h; do
    sed -f "$here/port.sed" "$from/$name" >"$to/$name"
done
cp "$to"/{qsvgrenderer,qtsvgglobal}.h "$to/QtSvg/"
echo '#include "qsvgrenderer.h"' >"$to/QtSvg/QSvgRenderer"
cp "$here"/{CMakeLists.txt,Qt6SvgConfig.cmake,Qt6SvgConfigVersion.cmake} "$to/"
