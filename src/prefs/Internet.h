// The only ways out of the program: web pages and mail.
#pragma once

#include <QString>

// Whether the machine is connected. Always true: the place of a test that the system makes better.
bool IsConnected();

// Opens a web page or a mail link in the system's program for it. Before a web page the user is
// asked to see to the connection.
void OpenUrl(const QString& Url);
