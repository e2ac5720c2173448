# in: SystemLog.mm
# says: format specifies type 'int'
s/@"%@", /@"%d", /
