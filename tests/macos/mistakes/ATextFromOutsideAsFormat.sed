# in: SystemLog.mm
# says: format string is not a string literal
s/@"%@", //
