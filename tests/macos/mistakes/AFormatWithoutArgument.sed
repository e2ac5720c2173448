# in: SystemLog.mm
# says: more '%' conversions than data arguments
s/@"%@", /@"%@ %@", /
