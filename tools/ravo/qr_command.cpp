#include "commands.h"
#include "qr_answer.h"
#include "text.h"

#include <memory>
#include <string>
#include <vector>

namespace tool {
namespace {

constexpr const char* kQrFooter = ToTranslate(
    "The code is the text that Czech banks read: Short Payment Descriptor 1.0 (\"SPD\"), with error\n"
    "correction M and a light border of four modules. Messages and names are in upper-case ASCII, so that\n"
    "every bank reads them; --utf8 keeps case and diacritics. Values of other lengths or characters than "
    "the\n"
    "standard permits are refused, and so are accounts whose check digits do not match.\n"
    "\n"
    "--invoice makes a Short Invoice Descriptor (\"SID\"), alone or, with ACCOUNT, inside the payment. Its "
    "keys\n"
    "are ID (number), DD (day of issue), AM, VII and INI (DIČ and IČO of the issuer), VIR and INR (of the\n"
    "recipient), DUZP, TB0, T0, TB1, T1 (bases and taxes) and others; days are YYYYMMDD.\n"
    "\n"
    "--isdoc takes account, amount, currency, due date, symbols, supplier and number of an invoice (ISDOC "
    "6);\n"
    "what is given beside it wins. The invoice is not checked: 'ravo isdoc check' does that. With --invoice "
    "the\n"
    "data of the invoice are inside the payment, KEY=VALUE or not.\n"
    "\n"
    "On a terminal the code is drawn with blocks, for light letters on a dark ground; elsewhere its text is\n"
    "written. With -o, the name of the file tells the format.\n"
    "\n"
    "Exit status: 0, or 1 a text that --read refuses, 2 wrong usage, a value that is refused, or a file "
    "that\n"
    "cannot be written.\n"
    "\n"
    "Examples:\n"
    "  ravo qr 19-2000145399/0800 --amount 1210 --vs 2026000579 --due +14d\n"
    "  ravo qr CZ6508000000192000145399 --amount 1210 --message \"Nájemné za listopad\" -o payment.png\n"
    "  ravo qr 19-2000145399/0800 --amount 1210 --invoice ID=FV26001 DD=20261122 INI=27082440\n"
    "  ravo qr --isdoc invoice.isdoc -o payment.png\n"
    "  ravo qr --read 'SPD*1.0*ACC:CZ6508000000192000145399*AM:1210.00*CC:CZK'\n");

void AddPaymentOptions(CLI::App& command, PaymentRequest& request) {
  const auto add = [&](const char* name, std::string& value, const std::string& what,
                       const std::string& type) { command.add_option(name, value, what)->type_name(type); };
  add("--amount", request.amount, Text("The amount, with \".\" or \",\""), Text("NUMBER"));
  add("--currency", request.currency, Text("The currency; CZK by default"), Text("CODE"));
  add("--vs", request.vs, Text("The variable symbol"), Text("NUMBER"));
  add("--ks", request.ks, Text("The constant symbol"), Text("NUMBER"));
  add("--ss", request.ss, Text("The specific symbol"), Text("NUMBER"));
  add("--message", request.message, Text("The message for the recipient, of up to 60 characters"),
      Text("TEXT"));
  add("--due", request.due, Text("The due date, such as 2026-11-21, 21.11.2026 or +14d"), Text("DATE"));
  add("--recipient", request.recipient, Text("The name of the recipient, of up to 35 characters"),
      Text("TEXT"));
  command.add_option("--field", request.fields, Text("Other attributes of the standard, such as X-ID=17"))
      ->type_name(Text("KEY=VALUE"));
  command.add_option("--invoice", request.invoice, Text("The attributes of an invoice, such as ID=FV26001"))
      ->type_name(Text("KEY=VALUE"))
      ->expected(0, -1);
  command.add_flag("--utf8", request.utf8, Text("Keep case and characters beyond ASCII"));
  command.add_flag("--crc", request.checksum, Text("Add a checksum"));
}

void AddQrOutput(CLI::App& command, QrOptions& options) {
  command
      .add_option("--format", options.format,
                  Text("What is written: text, blocks, svg or png; the name of the file tells it too"))
      ->check(CLI::IsMember({"text", "blocks", "svg", "png"}));
  command.add_option("--scale", options.scale, Text("Pixels a module of a PNG"))
      ->check(CLI::Range(1, 64).description(""))
      ->capture_default_str();
  command.add_option("-o", options.out, Text("Write to this file"))->type_name(Text("FILE"));
  command.add_flag("--json", options.json, Text("Write JSON"));
}

}  // namespace

void AddQrCommand(CLI::App& program, Outcome& outcome) {
  CLI::App* command = program.add_subcommand("qr", Text("Makes and reads QR codes of payments and invoices"));
  const auto options = std::make_shared<QrOptions>();
  command->add_option(Text("ACCOUNT"), options->request.account,
                      Text("The recipient's account or IBAN, perhaps with \"+\" and a BIC"));
  AddPaymentOptions(*command, options->request);
  AddQrOutput(*command, *options);
  CLI::Option* const isdoc =
      command
          ->add_option("--isdoc", options->isdoc,
                       Text("Take what is not given from this invoice; \"-\" is standard input"))
          ->type_name(Text("FILE"));
  command
      ->add_option("--read", options->read, Text("Read the text of a code instead; \"-\" is standard input"))
      ->type_name(Text("TEXT"))
      ->excludes(isdoc);
  command->footer(Text(kQrFooter));
  command->callback([options, command, &outcome] {
    options->with_invoice = command->count("--invoice") > 0;
    std::erase(options->request.invoice, "");  // the parser's value for none
    AnswerQr(*options, outcome);
  });
}

}  // namespace tool
