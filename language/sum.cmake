# cmake -D LIBRARY=NAME.qm -P sum.cmake
# Writes NAME.qm.sum: length and SHA-256 of the library, by which the programs know that it is whole. The toolkit's reader
# trusts the offsets in such a file, and crashes on a damaged one.
file(SIZE ${LIBRARY} length)
file(SHA256 ${LIBRARY} digest)
file(WRITE ${LIBRARY}.sum "${length} ${digest}\n")
