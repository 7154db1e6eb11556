// printer_setup.cpp: installs a PostScript printer on the machine (or Wine prefix) it runs on.
//
//   printer_setup NAME PPD PORT [default]   installs or replaces the printer NAME
//   printer_setup                           lists the printers: name, port, driver, default or not
//
// PPD is a Windows path, PORT any port the spooler accepts; Wine also takes "|command", a Unix command
// that reads the job from its standard input. Exits 0, or 1 with the failing call and its error code.
#include <windows.h>

#include <winspool.h>

#include <cstdio>
#include <vector>

namespace {

constexpr wchar_t kDriverFile[] = L"wineps.drv";

int Failed(const char* call) {
  std::fprintf(stderr, "printer_setup: %s failed, error %lu\n", call, GetLastError());
  return 1;
}

// One driver a printer, named after it, because the PPD belongs to the driver.
bool AddDriver(wchar_t* name, wchar_t* ppd, const wchar_t* environment) {
  DRIVER_INFO_3W driver{};
  driver.cVersion = 3;
  driver.pName = name;
  driver.pEnvironment = const_cast<wchar_t*>(environment);
  driver.pDriverPath = const_cast<wchar_t*>(kDriverFile);
  driver.pConfigFile = const_cast<wchar_t*>(kDriverFile);
  driver.pDataFile = ppd;
  wchar_t dataType[] = L"RAW";
  driver.pDefaultDataType = dataType;
  return AddPrinterDriverExW(nullptr, 3, reinterpret_cast<BYTE*>(&driver),
                             APD_COPY_NEW_FILES | APD_COPY_FROM_DIRECTORY);
}

int Install(wchar_t* name, wchar_t* ppd, wchar_t* port, bool isDefault) {
  // Programs of either width look the driver up under their own environment.
  for (const wchar_t* environment : {L"Windows x64", L"Windows NT x86"}) {
    if (!AddDriver(name, ppd, environment)) return Failed("AddPrinterDriverEx");
  }
  HANDLE old = nullptr;
  PRINTER_DEFAULTSW access{nullptr, nullptr, PRINTER_ALL_ACCESS};
  if (OpenPrinterW(name, &old, &access)) {
    DeletePrinter(old);
    ClosePrinter(old);
  }
  wchar_t processor[] = L"winprint";
  wchar_t dataType[] = L"RAW";
  PRINTER_INFO_2W printer{};
  printer.pPrinterName = name;
  printer.pDriverName = name;
  printer.pPortName = port;
  printer.pPrintProcessor = processor;
  printer.pDatatype = dataType;
  HANDLE added = AddPrinterW(nullptr, 2, reinterpret_cast<BYTE*>(&printer));
  if (!added) return Failed("AddPrinter");
  ClosePrinter(added);
  if (isDefault && !SetDefaultPrinterW(name)) return Failed("SetDefaultPrinter");
  return 0;
}

int List() {
  wchar_t defaultName[256] = L"";
  DWORD length = 256;
  GetDefaultPrinterW(defaultName, &length);
  DWORD needed = 0;
  DWORD count = 0;
  EnumPrintersW(PRINTER_ENUM_LOCAL, nullptr, 2, nullptr, 0, &needed, &count);
  std::vector<BYTE> buffer(needed);
  if (!EnumPrintersW(PRINTER_ENUM_LOCAL, nullptr, 2, buffer.data(), needed, &needed, &count)) {
    return Failed("EnumPrinters");
  }
  const auto* printers = reinterpret_cast<const PRINTER_INFO_2W*>(buffer.data());
  for (DWORD i = 0; i < count; ++i) {
    const bool isDefault = lstrcmpW(printers[i].pPrinterName, defaultName) == 0;
    std::printf("%ls\t%ls\t%ls%s\n", printers[i].pPrinterName, printers[i].pPortName, printers[i].pDriverName,
                isDefault ? "\tdefault" : "");
  }
  return 0;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc == 1) return List();
  if (argc != 4 && argc != 5) {
    std::fprintf(stderr, "usage: printer_setup [NAME PPD PORT [default]]\n");
    return 2;
  }
  return Install(argv[1], argv[2], argv[3], argc == 5);
}
