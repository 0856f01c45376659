# What the library needs. The tool, the SDK and the development targets find theirs themselves.
find_package(Threads REQUIRED)
find_package(LibXml2 REQUIRED)
find_package(jsoncpp REQUIRED)
find_package(log4cxx REQUIRED)
