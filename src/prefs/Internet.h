// The only ways out of the program: web pages and mail.
#pragma once

#include <QString>

// Whether the machine is connected. Always true: the place of a test that the system makes better.
bool IsConnected();

// Opens a web page or a mail link in the system's program for it. Before a web page the user is
// asked to see to the connection. What no link may hold is percent-encoded, in UTF-8: control
// characters, blanks, quotes, angle brackets, characters beyond ASCII and the like, and a percent
// sign that encodes nothing. Everything else stands as it is given.
void OpenUrl(const QString& Url);

// Lets the user send a plain text: asks for address and subject, puts the text on the clipboard and
// opens the mail program. Returns when the question is answered.
void EmailText(const QString& Text);
