# SPDX-FileCopyrightText: 2026 The RtlVakIns authors
# SPDX-License-Identifier: Apache-2.0

# Writes OUTPUT, the body of readerVersion(): a hash over the sources in FOLDER and their names.
file(GLOB_RECURSE names RELATIVE ${FOLDER} ${FOLDER}/*.cpp ${FOLDER}/*.h)
list(SORT names)
set(all "")
foreach(name ${names})
    file(SHA256 ${FOLDER}/${name} hash)
    string(APPEND all "${name} ${hash}\n")
endforeach()
string(SHA256 version "${all}")
file(WRITE ${OUTPUT} "#include \"hostlibs/netcatcher/cache/readerversion.h\"

QByteArray NETCATCHER::readerVersion()
{
    return QByteArrayLiteral(\"${version}\");
}
")
